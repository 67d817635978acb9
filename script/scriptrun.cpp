#include "scriptrun.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>

#include <memory>

namespace EmulationManagement::Internal {

void runScript(const QUrl &file, const QVariantMap &initialProperties)
{
    QQmlEngine engine;
    QQmlComponent script(&engine, file);
    const std::unique_ptr<QObject> object(script.createWithInitialProperties(initialProperties));
    if (!object)
        qFatal("A script cannot run: %s", qPrintable(script.errorString()));
}

} // namespace EmulationManagement::Internal
