#pragma once

#include <QStringList>

namespace NimbraEmulator {

/// The packages that the emulator carries, each as name-version-release.architecture.
class PackageList
{
public:
    /// Carries \a packages, or the default ones when there are none.
    explicit PackageList(const QStringList &packages = {});

    /// Adds a package unless it is carried; a plain name gets a version.
    void add(const QString &package);

    /// Takes the package called exactly \a name out; false when it is not carried.
    bool remove(const QString &name);

    /// The list as the package manager prints it, one package a line.
    [[nodiscard]] QString text() const;

private:
    [[nodiscard]] qsizetype indexOf(const QString &name) const;

    QStringList m_packages;
};

} // namespace NimbraEmulator
