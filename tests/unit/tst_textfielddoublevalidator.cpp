#include <plugin/textfielddoublevalidator.h>

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

class TextFieldDoubleValidatorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validate_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QValidator::State>("state");
        QTest::addColumn<double>("bottom");
        QTest::addColumn<double>("top");
        QTest::addColumn<int>("decimals");
        const auto add = [](const char *name, const QString &input, QValidator::State state,
                            double bottom = -90, double top = 90, int decimals = 6) {
            QTest::newRow(name) << input << state << bottom << top << decimals;
        };
        using enum QValidator::State;
        add("one decimal too many taken", u"12.3456789"_s, Invalid);
        add("a point alone taken", u"."_s, Invalid);
        add("the user's decimal comma taken", u"1,5"_s, Invalid);
        add("exponent refused", u"9e1"_s, Acceptable);
        add("decimals of an exponent not counted", u"1.2345e-01"_s, Invalid);
        add("not a number taken", u"nan"_s, Invalid);
        add("prefix out of range taken", u"1"_s, Invalid, 10, 20, 0);
        add("sign in a positive range refused", u"-"_s, Intermediate, 10, 20, 0);
        add("negative number there taken", u"-1"_s, Invalid, 10, 20, 0);
        add("point without decimals taken", u"5."_s, Invalid, 0, 9, 0);
    }

    void validate()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); // decimal comma
        QFETCH(const QString, input);
        QFETCH(const double, bottom);
        QFETCH(const double, top);
        QFETCH(const int, decimals);
        TextFieldDoubleValidator validator;
        validator.setRange(bottom, top, decimals);
        QString text = input;
        int position = 1;
        QTEST(validator.validate(text, position), "state");
        QCOMPARE(text, input);
    }
};

QTEST_GUILESS_MAIN(TextFieldDoubleValidatorTest)

#include "tst_textfielddoublevalidator.moc"
