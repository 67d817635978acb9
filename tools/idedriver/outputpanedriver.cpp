#include "outputpanedriver.h"

#include "waiting.h"

#include <coreplugin/actionmanager/actionmanager.h>
#include <coreplugin/actionmanager/command.h>

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QToolButton>

namespace OutputPaneDriver {

void show()
{
    Core::ActionManager::command("QtCreator.Pane.EmulationManagement.OutputPane")
        ->action()
        ->trigger();
}

void click(const QString &text)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *button = qobject_cast<QToolButton *>(widget);
        if (button && button->text() == text)
            return button->click();
    }
    throw WaitingFailed("no button " + text.toStdString());
}

void chooseFile(const QString &path)
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *dialog = qobject_cast<QFileDialog *>(widget); dialog && dialog->isVisible()) {
            Q_EMIT dialog->fileSelected(path);
            dialog->close();
            QCoreApplication::processEvents(); // the pane uses the file once the dialog is closed
            return;
        }
    }
    throw WaitingFailed("no file dialog");
}

} // namespace OutputPaneDriver
