#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Asks the user a question over the IDE's main window, for use in QML.
class WarningDialog : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QMessageBox::StandardButtons standardButtons READ standardButtons
                   WRITE setStandardButtons NOTIFY standardButtonsChanged)
    Q_PROPERTY(bool withDoNotShowAgainCheckBox READ withDoNotShowAgainCheckBox
                   WRITE setWithDoNotShowAgainCheckBox NOTIFY withDoNotShowAgainCheckBoxChanged)

public:
    using QObject::QObject;

    [[nodiscard]] QString text() const;
    void setText(const QString &text);

    [[nodiscard]] QMessageBox::StandardButtons standardButtons() const;
    void setStandardButtons(QMessageBox::StandardButtons buttons);

    [[nodiscard]] bool withDoNotShowAgainCheckBox() const;
    void setWithDoNotShowAgainCheckBox(bool withCheckBox);

    /// Shows the question and waits for the answer.
    Q_INVOKABLE void show();

Q_SIGNALS:
    void textChanged();
    void standardButtonsChanged();
    void withDoNotShowAgainCheckBoxChanged();
    /// The answer was Ok or Apply. Without the check box \a doNotShowAgain is false.
    void accepted(bool doNotShowAgain);
    /// The answer was Cancel or Discard.
    void rejected();

private:
    QString m_text;
    QMessageBox::StandardButtons m_standardButtons = QMessageBox::Ok | QMessageBox::Cancel;
    bool m_withDoNotShowAgainCheckBox = false;
};

} // namespace EmulationManagement::Internal
