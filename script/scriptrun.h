#pragma once

#include <QVariantMap>

#include <mutex>

class QJSEngine;
class QUrl;

namespace EmulationManagement::Internal {

/// Runs a script in an engine of its own. Another thread can interrupt it.
class ScriptRun
{
public:
    /*!
     * Creates the object of a QML file, which does its work as soon as it is created, and removes
     * it again.
     *
     * The object's errors reach the engine only as interruptions: the file handles all others. It
     * is a fault of the program if the file cannot be loaded.
     */
    void run(const QUrl &file, const QVariantMap &initialProperties);

    /// Ends run(), at once or when it begins. Can be called from every thread.
    void interrupt();

private:
    void setEngine(QJSEngine *engine);

    std::mutex m_mutex; // protects all below
    QJSEngine *m_engine = nullptr;
    bool m_interrupted = false;
};

} // namespace EmulationManagement::Internal
