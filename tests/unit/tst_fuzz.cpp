#include <camera/cameracapabilities.h>
#include <camera/framerates.h>
#include <devicemodel/smartphone3dmodelconfig.h>
#include <link/remotedbusinvokerservice.h>
#include <sensors/sensorsemulationmanager.h>
#include <support/idesettings.h>

#include <gst/gst.h>

#include <QDir>
#include <QFile>
#include <QTest>

#include <bit>
#include <cmath>
#include <optional>
#include <random>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

/// Mutates valid inputs at random and compares the results with those of another implementation.
/// FUZZ_SEED chooses the inputs, FUZZ_COUNT their number in each function.
class FuzzTest : public QObject
{
    Q_OBJECT

    int number(int end) { return std::uniform_int_distribution(0, end - 1)(m_random); }

    /// A finite number, mostly of a usual size.
    double real()
    {
        const double any
            = std::bit_cast<double>(std::uniform_int_distribution<quint64>()(m_random));
        const double usual = std::uniform_real_distribution(-200.0, 200.0)(m_random);
        return number(4) == 0 && std::isfinite(any) ? any : usual;
    }

    /// One of \a texts with some bytes removed, doubled, replaced or inserted.
    QByteArray mutated(const QByteArrayList &texts, const QByteArrayList &dictionary)
    {
        QByteArray text = texts.at(number(int(texts.size())));
        for (int i = number(5); i > 0; --i) {
            const qsizetype at = number(int(text.size()) + 1);
            switch (number(5)) {
            case 0:
                text.remove(at, number(6));
                break;
            case 1:
                text.insert(at, text.mid(at, number(12)));
                break;
            case 2:
                text.insert(at, char(number(256)));
                break;
            case 3:
                text = text.first(at) + texts.at(number(int(texts.size()))).sliced(0, 3);
                break;
            default:
                text.insert(at, dictionary.at(number(int(dictionary.size()))));
            }
        }
        return text;
    }

    template<typename Check>
    void repeat(const Check &check)
    {
        for (int i = 0; i < m_count && !QTest::currentTestFailed(); ++i)
            check();
    }

    std::mt19937 m_random;
    int m_count = 2000;

private Q_SLOTS:
    void initTestCase()
    {
        gst_init(nullptr, nullptr);
        if (qEnvironmentVariableIsSet("FUZZ_COUNT"))
            m_count = qEnvironmentVariableIntValue("FUZZ_COUNT");
    }

    void init()
    {
        const unsigned seed = qEnvironmentVariableIsSet("FUZZ_SEED")
                                  ? unsigned(qEnvironmentVariableIntValue("FUZZ_SEED"))
                                  : std::random_device()() / 2; // fits into an int
        qInfo("seed %u, %d inputs", seed, m_count);
        m_random.seed(seed);
    }

    void replies()
    {
        const TestSupport::IdeSettings settings;
        RemoteDBusInvokerService link;
        std::optional<SensorsEmulationManager> manager;
        QString answer;
        repeat([&] {
            // a manager keeps every name that the emulator sends, so a new one starts with few
            if (!manager || manager->sensorsEnabledStates().size() > 50) {
                manager.emplace();
                manager->setRdbusinvoker(&link);
                connect(&*manager, &EmulationManager::replyFromEmulatorReceived, this,
                        [&](const QString &text) { answer = text; });
            }
            const QString line = QString::fromUtf8(
                mutated({"enabled:als:1::", "enabled:|tap|x:false::", "x:1|2:y:org.x.Bad:No such",
                         "connection refused"},
                        {":", "|", "::::", "%1", "\xd1\x8f", "0", "enabled:"}));
            const QStringList fields = line.split(u':');
            QVariantMap states = manager->sensorsEnabledStates();
            manager->processReplyFromEmulator(line);
            const bool grammatical = fields.size() == 5;
            const bool success = grammatical && fields.at(3).isEmpty();
            QCOMPARE(answer, success       ? u"OK"_s
                             : grammatical ? fields.at(3) + u' ' + fields.at(4)
                                           : line);
            if (success && fields.at(0) == "enabled"_L1) {
                QString name = fields.at(1);
                while (name.startsWith(u'|'))
                    name.removeFirst();
                name = name.left(name.indexOf(u'|'));
                const QString value = fields.at(2).toLower();
                const bool on = !value.isEmpty() && value != "0"_L1 && value != "false"_L1;
                if (!name.isEmpty())
                    states[name] = on && manager->sensorsAvailability().value(name).toBool();
            }
            QCOMPARE(manager->sensorsEnabledStates(), states);
        });
    }

    void caps()
    {
        qint64 parsed = 0;
        repeat([&] {
            const QByteArray text = mutated(
                {"video/x-raw,width=640,height=480,framerate={(fraction)30/1,(fraction)15/1}",
                 "video/x-raw,width=[16,1920],height=48,framerate=[0/1,2147483647/1]",
                 "video/x-raw,width=320,height=240,framerate=30000/1001; image/jpeg,width=1"},
                {",width=-1", ",height={1,2}", "; ", "framerate=[1/2,60/1]", "(int)", "(string)a",
                 "2147483648", "/0", "{ [ 1/1, 2/1 ], 3/1 }"});
            if (text.contains('\0'))
                return;
            GstCaps *caps = gst_caps_from_string(text.constData());
            parsed += caps ? 1 : 0;
            const QVariantList resolutions = availableResolutions(caps);
            if (caps)
                gst_caps_unref(caps);
            int previous = std::numeric_limits<int>::max();
            for (const QVariant &resolution : resolutions) {
                const QVariantMap map = resolution.toMap();
                const int width = map.value(u"width"_s).toInt();
                QVERIFY(width > 0 && width <= previous && map.value(u"height"_s).toInt() > 0);
                QVERIFY(map.value(u"framerates"_s).toStringList().size() < 1000);
                previous = width;
            }
            // also texts that GStreamer would not write
            QStringList framerates;
            initAvailableFramerates(&framerates, QString::fromUtf8(text));
        });
        qInfo("%d of the texts were caps", int(parsed));
        QVERIFY(parsed > m_count / 10);
    }

    void settingsFiles()
    {
        const QDir folder(QCoreApplication::applicationDirPath() + "/configs"_L1);
        QVERIFY(folder.mkpath(u"."_s));
        TestSupport::IdeSettings settings;
        const QByteArrayList dictionary{"[",      "]", "=",  "\\x", "\"",    "@Variant(", "@",
                                        "%U263a", ",", "\n", "nan", "1e999", "\\"};
        repeat([&] {
            QFile config(folder.filePath(u"a.ini"_s));
            QFile values(settings.fileName());
            QVERIFY(config.open(QIODevice::WriteOnly) && values.open(QIODevice::WriteOnly));
            config.write(mutated({"device-name=Phone\nmesh=a.json\ntexture=\"\\xe4.png\"\n",
                                  "[sensors]\ngyroscope=false\n"},
                                 dictionary));
            values.write(mutated({"[emulationmanagement]\naccelerometer_x=1\ntap=3\n",
                                  "[emulationmanagement]\ngps_latitude=@Double(1)\nals=x\n"},
                                 dictionary));
            config.close();
            values.close();
            settings.reopen();
            Smartphone3DModelConfig model;
            model.updateSmartphone3DModel(u"Phone"_s);
            QVERIFY(model.smartphone3DModelConfigured());
            // values that are saved over the invalid file are read back unchanged
            const int x = int(m_random());
            const double latitude = real();
            {
                SettingsManager manager;
                static_cast<void>(manager.readTapSensorValue());
                manager.saveAccelerometerValues(x, 0, 0);
                manager.saveGpsLatitude(latitude);
            }
            settings.reopen();
            const SettingsManager manager;
            QCOMPARE(manager.readAccelerometerX(), x);
            QCOMPARE(manager.readGpsLatitude(), latitude);
        });
        QVERIFY(QDir(folder).removeRecursively());
    }
};

QTEST_GUILESS_MAIN(FuzzTest)

#include "tst_fuzz.moc"
