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
        add("a field can be emptied", QString(), Intermediate);
        add("a sign can be typed first", u"-"_s, Intermediate);
        add("bottom", u"-90"_s, Acceptable);
        add("below bottom", u"-90.000001"_s, Invalid);
        add("top", u"90"_s, Acceptable);
        add("above top", u"90.000001"_s, Invalid);
        add("as many decimals as allowed", u"12.345678"_s, Acceptable);
        add("one decimal too many", u"12.3456789"_s, Invalid);
        add("a point can be typed", u"1."_s, Acceptable);
        add("a point alone", u"."_s, Invalid);
        add("the user's decimal comma", u"1,5"_s, Invalid);
        add("exponent", u"9e1"_s, Acceptable);
        add("an exponent counts as decimals", u"1.2345e-01"_s, Invalid);
        add("not a number", u"nan"_s, Invalid);
        add("a prefix out of range", u"1"_s, Invalid, 10, 20, 0);
        add("a sign in a positive range", u"-"_s, Intermediate, 10, 20, 0);
        add("a negative number there", u"-1"_s, Invalid, 10, 20, 0);
        add("a point where none may be", u"5."_s, Invalid, 0, 9, 0);
        add("a whole number there", u"5"_s, Acceptable, 0, 9, 0);
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
