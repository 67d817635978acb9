#include "packagelist.h"

#include <QRegularExpression>

#include <algorithm>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

static QStringList defaultPackages()
{
    return {
        u"bash-5.2.15-1.4.2.i486"_s,
        u"coreutils-9.1-1.2.1.i486"_s,
        u"dbus-1.14.10-1.3.4.i486"_s,
        u"geoclue-emulator-1.0.4-1.2.1.i486"_s,
        u"glib2-2.78.4-1.5.1.i486"_s,
        u"glibc-2.38-1.7.3.i486"_s,
        u"gstreamer-emulator-1.0.3-1.1.2.i486"_s,
        u"gstreamer1.0-1.22.9-1.2.6.i486"_s,
        u"gstreamer1.0-plugins-good-1.22.9-1.2.4.i486"_s,
        u"openssh-server-9.6p1-1.3.1.i486"_s,
        u"qt5-qtcore-5.6.3-1.11.2.i486"_s,
        u"qt5-qtdeclarative-5.6.3-1.6.1.i486"_s,
        u"qt5-qtsensors-5.6.3-1.2.3.i486"_s,
        u"remote-dbus-invoker-1.0.2-1.1.1.i486"_s,
        u"rpm-4.18.2-1.4.1.i486"_s,
        u"sensorfw-qt5-0.14.2-1.5.1.i486"_s,
        u"sensorfw-qt5-emulator-plugins-1.0.6-1.2.2.i486"_s,
        u"systemd-254.9-1.8.1.i486"_s,
        u"zlib-1.3.1-1.1.3.i486"_s,
    };
}

// The name in name-version-release.architecture.
static QString baseName(const QString &package)
{
    static const QRegularExpression pattern(uR"(\A(.+)-[^-]+-[^-]+\.[^-.]+\z)"_s);
    const QRegularExpressionMatch match = pattern.match(package);
    return match.hasMatch() ? match.captured(1) : package;
}

PackageList::PackageList(const QStringList &packages)
{
    if (packages.isEmpty())
        m_packages = defaultPackages();
    for (const QString &package : packages)
        add(package);
}

qsizetype PackageList::indexOf(const QString &name) const
{
    const auto found = std::ranges::find(m_packages, name, baseName);
    return found == m_packages.end() ? -1 : std::distance(m_packages.begin(), found);
}

void PackageList::add(const QString &package)
{
    const QString name = baseName(package);
    if (indexOf(name) < 0)
        m_packages.append(name == package ? package + "-1.0.0-1.1.1.i486"_L1 : package);
}

bool PackageList::remove(const QString &name)
{
    const qsizetype index = indexOf(name);
    if (index >= 0)
        m_packages.removeAt(index);
    return index >= 0;
}

QString PackageList::text() const
{
    return m_packages.isEmpty() ? QString() : m_packages.join(u'\n') + u'\n';
}

} // namespace NimbraEmulator
