#include "scriptrun.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>

#include <memory>

namespace EmulationManagement::Internal {

void ScriptRun::run(const QUrl &file, const QVariantMap &initialProperties)
{
    QQmlEngine engine;
    engine.setOutputWarningsToStandardError(false); // the only ones are interruptions
    setEngine(&engine);
    QQmlComponent script(&engine, file);
    const std::unique_ptr<QObject> object(script.createWithInitialProperties(initialProperties));
    setEngine(nullptr);
    if (!object && !engine.isInterrupted())
        qFatal("A script cannot run: %s", qPrintable(script.errorString()));
}

void ScriptRun::interrupt()
{
    const std::scoped_lock lock(m_mutex);
    m_interrupted = true;
    if (m_engine)
        m_engine->setInterrupted(true);
}

void ScriptRun::setEngine(QJSEngine *engine)
{
    const std::scoped_lock lock(m_mutex);
    m_engine = engine;
    if (m_engine && m_interrupted)
        m_engine->setInterrupted(true);
}

} // namespace EmulationManagement::Internal
