#include <camera/framerates.h>

#include <QTest>

using namespace Qt::StringLiterals;

/// Odd fractions, which real cameras hardly have. Virtual cameras test the others.
class FrameratesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oddFields()
    {
        QCOMPARE(::normalizeFractions(u"5/0,x/2,-7/2,30/1,25,1/2/3,,9/x"_s).join(u' '),
                 u"5/1 0/1 -3/1 30/1 25 1/2/3 9/1");
        QStringList framerates;
        initAvailableFramerates(&framerates, u"[ 1/0, nonsense ]"_s);
        QCOMPARE(framerates, QStringList(u"0/1"_s));
        initAvailableFramerates(&framerates, u"[ 0/1, 2147483647/1 ]"_s);
        QVERIFY(framerates.size() < 300);
    }
};

QTEST_GUILESS_MAIN(FrameratesTest)

#include "tst_framerates.moc"
