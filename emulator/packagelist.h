#pragma once

#include <QStringList>

namespace NimbraEmulator {

/// The emulator's installed packages, each as name-version-release.architecture.
class PackageList
{
public:
    /// Starts with \a packages, or with the default ones if \a packages is empty.
    explicit PackageList(const QStringList &packages = {});

    /// Adds a package unless the list has it; a plain name gets a version.
    void add(const QString &package);

    /// Removes the package called exactly \a name; false when the list does not have it.
    bool remove(const QString &name);

    /// The list as the package manager prints it, one package a line.
    [[nodiscard]] QString text() const;

private:
    [[nodiscard]] qsizetype indexOf(const QString &name) const;

    QStringList m_packages;
};

} // namespace NimbraEmulator
