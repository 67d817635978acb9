#include "languagetest.h"

#include <messageboxanswers.h>
#include <plugindriver.h>

#include <coreplugin/actionmanager/actionmanager.h>
#include <coreplugin/actionmanager/command.h>

#include <extensionsystem/pluginmanager.h>

#include <QAccessible>
#include <QAction>
#include <QQmlListReference>
#include <QQuickItem>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

static QString language()
{
    return ExtensionSystem::PluginManager::settings()->value("General/OverrideLanguage").toString();
}

/// Whether a text is the same in every language: a number, the symbol of an axis or a vector, or an
/// enumerator that apps use.
static bool isData(const QString &text)
{
    static const QRegularExpression data("^([-0-9., =%x/]*|[XYZgB]|…|Undefined|Light|TopUp)$");
    return data.match(text).hasMatch();
}

/// Finds an object and all objects and items below it, shown or hidden.
static void collect(QObject *object, QSet<QObject *> &found)
{
    if (!object || found.contains(object))
        return;
    found << object;
    for (QObject *child : object->children())
        collect(child, found);
    if (const auto *item = qobject_cast<QQuickItem *>(object)) {
        for (QQuickItem *child : item->childItems())
            collect(child, found);
    }
}

void LanguageTest::testTitle()
{
    const QHash<QString, QString> titles = {
        {"eo_001", "[Emulation Management]"},
        {"de_AT", "Emulationsverwaltung"},
        {"tlh", "Emulation Management"},
    };
    if (!titles.contains(language()))
        QSKIP("needs an IDE that was started in another language");
    QCOMPARE(PluginDriver::view()->title(), titles[language()]);
}

void LanguageTest::testEveryTextIsTranslated()
{
    if (language() != "eo_001")
        QSKIP("needs an IDE that was started in the language of brackets");

    QQuickItem *root = PluginDriver::view()->rootObject();
    // pages create their content when they are shown
    PluginDriver::view()->show();
    const QQmlListReference pages(root, "pagesIds");
    for (qsizetype i = 0; i < pages.count(); ++i)
        pages.at(i)->setProperty("active", true);
    QSet<QObject *> objects;
    collect(root, objects);
    QStringList texts{
        Core::ActionManager::command("EmulationManagement.ShowEmulationManagementView.Action")
            ->action()
            ->text()};
    for (QObject *object : std::as_const(objects)) {
        for (const char *property : {"text", "title", "label", "placeholderText", "nameFilters"})
            texts << object->property(property).toStringList();
        if (const auto *accessible = QAccessible::queryAccessibleInterface(object))
            texts << accessible->text(QAccessible::Name);
    }
    const auto question = PluginDriver::createWarningDialog(
        "standardButtons: MessageDialog.Apply | MessageDialog.Discard");
    const MessageBoxAnswers answers(QMessageBox::Discard);
    QMetaObject::invokeMethod(question.get(), "show");
    texts << answers.boxes().constFirst().buttonTexts;
    QVERIFY(texts.contains("[Tap Sensor]") && texts.contains("[X-Rot]"));
    texts.removeIf([](const QString &text) { return text.contains(u'[') || isData(text); });
    texts.removeDuplicates();
    QVERIFY2(texts.isEmpty(), qPrintable(texts.join(u'\n')));
}
