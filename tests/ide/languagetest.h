#pragma once

#include <QObject>

/// What the window says in the language that the IDE was started in; see test-translation.
class LanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testTitle();
    void testEveryTextIsTranslated();
};
