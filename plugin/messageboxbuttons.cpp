#include "messageboxbuttons.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace EmulationManagement::Internal {

static QString translated(const char *text)
{
    return QCoreApplication::translate("MessageBoxButtons", text);
}

void translateButtons(QMessageBox *box)
{
    static constexpr std::pair<QMessageBox::StandardButton, const char *> texts[] = {
        {QMessageBox::Ok, QT_TRANSLATE_NOOP("MessageBoxButtons", "OK")},
        {QMessageBox::Apply, QT_TRANSLATE_NOOP("MessageBoxButtons", "Apply")},
        {QMessageBox::Discard, QT_TRANSLATE_NOOP("MessageBoxButtons", "Discard")},
        {QMessageBox::Cancel, QT_TRANSLATE_NOOP("MessageBoxButtons", "Cancel")},
        {QMessageBox::Close, QT_TRANSLATE_NOOP("MessageBoxButtons", "Close")},
    };
    for (const auto &[button, text] : texts) {
        if (QAbstractButton *standardButton = box->button(button))
            standardButton->setText(translated(text));
    }
}

} // namespace EmulationManagement::Internal
