#pragma once

#include <link/positionshift.h>

#include <QFutureWatcher>
#include <QToolButton>

namespace EmulationManagement::Internal {

/// Asks for a recording or a track, and writes a copy of it that lies at another place.
class MoveButton : public QToolButton
{
    Q_OBJECT

public:
    explicit MoveButton(QWidget *parent = nullptr);

private:
    void askForPlace(const QString &path);
    void askForTarget(const QString &path, const Place &place);
    void move(const QString &path, const Place &place, const QString &target);
    void handleMoved();

    QFutureWatcher<QString> m_moving; // to an error, or to an empty text
    QString m_target;
};

} // namespace EmulationManagement::Internal
