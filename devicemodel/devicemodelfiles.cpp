#include "devicemodelfiles.h"

#include <QDir>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

QMap<QString, QVariant> readDeviceModelFiles(const QString &directory,
                                             QVariantMap (*read)(QSettings &file))
{
    QMap<QString, QVariant> configurations;
    const QDir folder(directory);
    const QStringList fileNames = folder.entryList({u"*.ini"_s}, QDir::Files, QDir::Unsorted);
    for (const QString &fileName : fileNames) {
        QSettings file(folder.filePath(fileName), QSettings::IniFormat);
        configurations.insert(file.value(u"device-name"_s).toString(), read(file));
    }
    return configurations;
}

} // namespace EmulationManagement::Internal
