#pragma once

#include <QObject>
#include <QString>

namespace EmulationManagement::Internal {

/*!
 * Holds the last value that was sent to one emulated sensor.
 *
 * Models never talk to the emulator. Their setters always notify, also when the value stays the
 * same, so that a page can follow every call.
 */
class SensorModel : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The sensor's name in D-Bus arguments, in the maps of states and in the pages.
    virtual QString name() const = 0;
};

} // namespace EmulationManagement::Internal
