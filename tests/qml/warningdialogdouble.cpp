#include "warningdialogdouble.h"

#include "host.h"

#include <QQmlContext>
#include <QtQml>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

void WarningDialogDouble::show()
{
    auto *host = qmlContext(this)->contextProperty(u"host"_s).value<Host *>();
    const QMessageBox::StandardButton answer = host->ask(text());
    if (answer != QMessageBox::NoButton && !standardButtons().testFlag(answer))
        qWarning() << "The dialog does not offer" << answer;
    else if (answer == QMessageBox::Ok || answer == QMessageBox::Apply)
        Q_EMIT accepted(withDoNotShowAgainCheckBox() && host->doNotShowAgain());
    else if (answer == QMessageBox::Cancel || answer == QMessageBox::Discard)
        Q_EMIT rejected();
}

} // namespace EmulationManagement::Internal
