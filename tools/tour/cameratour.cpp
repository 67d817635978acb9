#include "cameratour.h"

#include "say.h"
#include "waiting.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSaveFile>

// Smaller than the page, which scrolls then.
static constexpr QSize smallSize(600, 250);

static QString cameraFile()
{
    return qEnvironmentVariable("VIRTUAL_CAMERAS");
}

static void unplug(const QByteArray &camera)
{
    QFile file(cameraFile());
    if (!file.open(QIODevice::ReadOnly))
        throw WaitingFailed("the virtual cameras cannot be read");
    QByteArrayList lines = file.readAll().split('\n');
    lines.removeIf([&](const QByteArray &line) { return line.startsWith(camera); });
    QSaveFile changed(cameraFile());
    if (!changed.open(QIODevice::WriteOnly) || changed.write(lines.join('\n')) < 0
        || !changed.commit())
        throw WaitingFailed("the virtual cameras cannot be written");
}

/// The dialog that is open, in a window of its own.
static WindowDriver openDialog()
{
    QQuickWindow *dialog = nullptr;
    waitFor(QStringLiteral("the dialog"), [&] {
        const QWindowList windows = QGuiApplication::allWindows();
        for (QWindow *window : windows) {
            if (window->inherits("QQuickPopupWindow") && window->isExposed())
                dialog = qobject_cast<QQuickWindow *>(window);
        }
        return dialog && dialog->isSceneGraphInitialized();
    });
    return WindowDriver(dialog);
}

CameraTour::CameraTour(const WindowDriver &driver, Journal &journal, TakePicture takePicture)
    : m_driver(driver)
    , m_journal(journal)
    , m_takePicture(std::move(takePicture))
{}

void CameraTour::run()
{
    say("Camera Management");
    m_driver.clickButton(QStringLiteral("Camera Management"));
    m_takePicture(QStringLiteral("camera-management"));
    streamCameras();
    unplugCamera();
    playVideoFile();
    cancelDialog();
    refuseVideoFile();
    leavePage();
}

void CameraTour::streamCameras()
{
    say("Camera Management: streaming two cameras in three sizes");
    qsizetype start = m_journal.position();
    m_driver.clickButton(QStringLiteral("Start stream"));
    waitForPictures({640, 480}, start);
    m_takePicture(QStringLiteral("camera-streaming"));

    start = m_journal.position();
    m_driver.choose(m_driver.items(QStringLiteral("QQuickComboBox")).at(1),
                    QStringLiteral("320x240"));
    m_driver.clickButton(QStringLiteral("Set settings"));
    waitForPictures({320, 240}, start);

    start = m_journal.position();
    m_driver.choose(m_driver.items(QStringLiteral("QQuickComboBox")).at(0),
                    QStringLiteral("Rear Camera"));
    m_takePicture(QStringLiteral("camera-chosen"));
    m_driver.clickButton(QStringLiteral("Set settings"));
    waitForPictures({1280, 720}, start);
    m_takePicture(QStringLiteral("camera-settings-applied"));

    const QSize size = m_driver.window()->size();
    m_driver.window()->resize(smallSize);
    m_takePicture(QStringLiteral("camera-small"));
    m_driver.window()->resize(size);
}

void CameraTour::unplugCamera()
{
    say("Camera Management: unplugging the camera that streams");
    const qsizetype start = m_journal.position();
    unplug("Rear Camera");
    m_journal.waitForEvent(QStringLiteral("video-ended"), start);
    m_takePicture(QStringLiteral("camera-unplugged"));

    unplug("Front Camera");
    waitFor(QStringLiteral("the video file to be the source"), [&] {
        return m_driver
            .item(QStringLiteral("QQuickRadioButton"), "text", QStringLiteral("Video file"))
            ->property("checked")
            .toBool();
    });
    m_takePicture(QStringLiteral("camera-none"));
}

void CameraTour::playVideoFile()
{
    say("Camera Management: playing a video file over and over");
    const qsizetype start = m_journal.position();
    chooseFile(QStringLiteral("vp9.webm"));
    waitForPictures({320, 240}, start);
    m_takePicture(QStringLiteral("camera-video-file"));
    waitFor(QStringLiteral("more pictures than the file has"), [&] {
        static constexpr int picturesOfFile = 60;
        int count = 0;
        const QList<QJsonObject> entries = m_journal.entriesSince(start);
        for (const QJsonObject &entry : entries) {
            if (entry.value(u"event").toString() == u"video")
                count += entry.value(u"frames").toInt();
        }
        return count > picturesOfFile;
    });
}

void CameraTour::cancelDialog()
{
    const QQuickItem *field = m_driver.items(QStringLiteral("QQuickTextField")).constFirst();
    const QString before = field->property("text").toString();
    chooseFile(QStringLiteral("vp8.webm"), QStringLiteral("Cancel"));
    if (field->property("text").toString() != before)
        throw WaitingFailed("a file was taken although the dialog was cancelled");
}

void CameraTour::refuseVideoFile()
{
    say("Camera Management: refusing a video file");
    const qsizetype start = m_journal.position();
    chooseFile(QStringLiteral("motion-jpeg.mkv"));
    m_journal.waitForEvent(QStringLiteral("video-ended"), start);
    m_takePicture(QStringLiteral("camera-video-refused"));
    m_driver.clickButton(QStringLiteral("OK"));
}

void CameraTour::leavePage()
{
    say("Camera Management: leaving the page ends the stream");
    qsizetype start = m_journal.position();
    chooseFile(QStringLiteral("vp8.webm"));
    waitForPictures({320, 240}, start);
    start = m_journal.position();
    m_driver.clickButton(QStringLiteral("Sensors Values"));
    m_journal.waitForEvent(QStringLiteral("video-ended"), start);
}

void CameraTour::chooseFile(const QString &name, const QString &button)
{
    // where the dialog begins
    QDir::setCurrent(qEnvironmentVariable("TOUR_VIDEOS"));
    m_driver.clickButton(QStringLiteral("…"));
    const WindowDriver dialog = openDialog();
    dialog.click(dialog.item(QStringLiteral("QQuickFileDialogDelegate"), "fileName", name));
    m_takePicture(QStringLiteral("camera-file-dialog"));
    dialog.clickButton(button);
}

void CameraTour::waitForPictures(QSize size, qsizetype since)
{
    waitFor(QStringLiteral("pictures of %1x%2").arg(size.width()).arg(size.height()), [&] {
        const QList<QJsonObject> entries = m_journal.entriesSince(since);
        return std::ranges::any_of(entries, [&](const QJsonObject &entry) {
            return entry.value(u"event").toString() == u"video"
                   && entry.value(u"width").toInt() == size.width()
                   && entry.value(u"height").toInt() == size.height()
                   && entry.value(u"broken").toInt() == 0;
        });
    });
}
