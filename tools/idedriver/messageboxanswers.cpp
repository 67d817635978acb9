#include "messageboxanswers.h"

#include "waiting.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTest>

#include <chrono>

using namespace Qt::StringLiterals;

MessageBoxAnswers::MessageBoxAnswers(QMessageBox::StandardButton answer, bool tick)
    : m_answer(answer)
    , m_tick(tick)
{
    connect(&m_timer, &QTimer::timeout, this, &MessageBoxAnswers::answer);
    m_timer.start(std::chrono::milliseconds(10));
}

MessageBoxAnswers::Box MessageBoxAnswers::waitForBox() const
{
    waitFor(u"a message box"_s, [this] { return !m_boxes.isEmpty(); });
    return m_boxes.constFirst();
}

QStringList MessageBoxAnswers::texts() const
{
    QStringList texts;
    for (const Box &box : m_boxes)
        texts << box.text;
    return texts;
}

void MessageBoxAnswers::answer()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box || box == m_last)
        return;
    m_last = box;
    QStringList buttonTexts;
    const QList<QAbstractButton *> buttons = box->buttons();
    for (const QAbstractButton *button : buttons)
        buttonTexts << button->text();
    m_boxes << Box{box->windowTitle(),     box->text(),
                   box->informativeText(), box->icon(),
                   box->standardButtons(), buttonTexts,
                   box->textFormat(),      box->checkBox() && box->checkBox()->isVisible()};
    if (box->checkBox())
        box->checkBox()->setChecked(m_tick);
    if (m_answer == QMessageBox::NoButton)
        QTest::keyClick(box, Qt::Key_Escape);
    else if (QAbstractButton *button = box->button(m_answer)) // boxes of the IDE may lack it
        button->click();
}
