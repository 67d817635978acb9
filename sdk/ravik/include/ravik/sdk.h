#pragma once

#include "ravik_global.h"

#include <QList>
#include <QObject>

namespace Ravik {

class Emulator;

/// How to write the name of the operating system.
enum class TextStyle {
    Title,      ///< as in headings and messages
    Identifier, ///< as in file names
};

/// The installed SDK: the emulators and the device models that it knows.
class RAVIK_EXPORT Sdk : public QObject
{
    Q_OBJECT

public:
    ~Sdk() override;

    /// The only SDK of this process; null if it has none.
    static Sdk *instance();

    /// The name of the operating system that the SDK is for.
    [[nodiscard]] static QString osVariant(TextStyle style = {});

    /// The emulators in the order of the user's settings. They belong to the SDK.
    [[nodiscard]] virtual QList<Emulator *> emulators() const = 0;

Q_SIGNALS:
    void emulatorAdded(int index);
    /// The emulator is still in emulators() when this is emitted, and is deleted later.
    void aboutToRemoveEmulator(int index);
    /// The list of device models has changed, not the device model of an emulator.
    void deviceModelsChanged();

protected:
    explicit Sdk(QObject *parent = nullptr);
};

} // namespace Ravik
