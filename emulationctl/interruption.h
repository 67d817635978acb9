#pragma once

#include <QObject>
#include <QTimer>

namespace EmulationCtl {

/*!
 * Tells once that the user wants the program to end, by Ctrl+C or SIGTERM, so that it can stop
 * tracks and streams first. A second Ctrl+C ends the program at once. A third one does so if the
 * program hangs.
 *
 * Only one object may exist at a time, because signals belong to the whole process.
 */
class Interruption : public QObject
{
    Q_OBJECT

public:
    explicit Interruption(QObject *parent = nullptr);

Q_SIGNALS:
    void requested();

private:
    QTimer m_timer;
};

} // namespace EmulationCtl
