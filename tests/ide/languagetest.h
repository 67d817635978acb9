#pragma once

#include <QObject>

/// Tests the texts of an IDE that test-translation started in another language.
class LanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testTitle();
    void testEveryTextIsTranslated();
};
