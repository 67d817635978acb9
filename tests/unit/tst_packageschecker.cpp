#include <plugin/emulationmanagementpackageschecker.h>
#include <support/temporarysdk.h>

#include <ravik/virtualmachine.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class PackagesCheckerTest : public QObject
{
    Q_OBJECT

    /// Starts two checks and returns the sorted packages of the only answer.
    QString missingPackages(const QSsh::SshConnectionParameters &first,
                            const QSsh::SshConnectionParameters &second)
    {
        EmulationManagementPackagesChecker checker;
        QSignalSpy finished(&checker, &EmulationManagementPackagesChecker::checkFinished);
        checker.checkPackages(first);
        checker.checkPackages(second);
        if (!finished.wait() || finished.size() != 1)
            return u"%1 answers"_s.arg(finished.size());
        QStringList packages = finished.constFirst().at(1).toString().split(u'\n');
        packages.removeIf(
            [](const QString &line) { return line.isEmpty() || line.contains(u':'); });
        packages.sort();
        return packages.join(u' ');
    }

    TestSupport::TemporarySdk m_sdk;

private Q_SLOTS:
    void initTestCase() { QVERIFY2(m_sdk.start(), qPrintable(m_sdk.machine().errorString())); }

    void check_data()
    {
        QTest::addColumn<QByteArrayList>("faults"); // they last for the next rows
        QTest::addColumn<QString>("missing");
        QTest::newRow("complete list refused") << QByteArrayList() << QString();
        QTest::newRow("one missing not noticed")
            << QByteArrayList{"without geoclue-emulator"} << u"geoclue-emulator"_s;
        QTest::newRow("longer name not taken")
            << QByteArrayList{"with my-geoclue-emulator-tools"} << QString();
        QTest::newRow("only the first missing told")
            << QByteArrayList{"without sensorfw-qt5-emulator-plugins",
                              "without remote-dbus-invoker"}
            << u"remote-dbus-invoker sensorfw-qt5-emulator-plugins"_s;
    }

    void check()
    {
        QFETCH(const QByteArrayList, faults);
        for (const QByteArray &fault : faults)
            QCOMPARE(m_sdk.requestFault("package " + fault), u"ok"_s);
        // the second check replaces the first, which is never answered
        QTEST(missingPackages({.host = u"127.0.0.1"_s, .port = 1}, m_sdk.machine().sshParameters()),
              "missing");
    }

    void whoCannotLogInFindsNothing()
    {
        const QSsh::SshConnectionParameters closed{.host = u"127.0.0.1"_s, .port = 1};
        QSsh::SshConnectionParameters stranger = m_sdk.machine().sshParameters();
        stranger.privateKeyFile += u".pub"_s;
        const QString all = u"geoclue-emulator gstreamer-emulator remote-dbus-invoker "
                            "sensorfw-qt5-emulator-plugins"_s;
        QCOMPARE(missingPackages(closed, closed), all);
        QCOMPARE(missingPackages(stranger, stranger), all);
    }

    void endlessOutputIsGivenUp()
    {
        const QTemporaryDir folder;
        QFile client(folder.filePath(u"ssh"_s));
        QVERIFY(client.open(QIODevice::WriteOnly));
        client.write("#!/bin/sh\nyes >&2 &\nexec yes\n");
        client.close();
        client.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QByteArray(QFile::encodeName(folder.path()) + ':' + path));
        const QString missing = missingPackages({}, {});
        qputenv("PATH", path);
        QCOMPARE(missing.count(u' '), 3);
    }
};

QTEST_GUILESS_MAIN(PackagesCheckerTest)

#include "tst_packageschecker.moc"
