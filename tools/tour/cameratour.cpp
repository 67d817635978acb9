#include "cameratour.h"

#include "say.h"
#include "waiting.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSaveFile>

using namespace Qt::StringLiterals;

// Smaller than the page, so that the page scrolls.
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

/// The open dialog, which has its own window.
static WindowDriver openDialog()
{
    QQuickWindow *dialog = nullptr;
    waitFor(u"the dialog"_s, [&] {
        const QWindowList windows = QGuiApplication::allWindows();
        for (QWindow *window : windows) {
            if (window->inherits("QQuickPopupWindow") && window->isExposed())
                dialog = qobject_cast<QQuickWindow *>(window);
        }
        return dialog && dialog->isSceneGraphInitialized();
    });
    return WindowDriver(dialog);
}

CameraTour::CameraTour(const WindowDriver &driver, JournalReader &journal, TakePicture takePicture)
    : m_driver(driver)
    , m_journal(journal)
    , m_takePicture(std::move(takePicture))
{}

void CameraTour::run()
{
    say("Camera Management");
    m_driver.clickButton(u"Camera Management"_s);
    m_takePicture(u"camera-management"_s);
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
    m_driver.clickButton(u"Start stream"_s);
    waitForPictures({640, 480}, start);
    m_takePicture(u"camera-streaming"_s);

    start = m_journal.position();
    m_driver.choose(m_driver.items(u"QQuickComboBox"_s).at(1), u"320x240"_s);
    m_driver.clickButton(u"Set settings"_s);
    waitForPictures({320, 240}, start);

    start = m_journal.position();
    m_driver.choose(m_driver.items(u"QQuickComboBox"_s).at(0), u"Rear Camera"_s);
    m_takePicture(u"camera-chosen"_s);
    m_driver.clickButton(u"Set settings"_s);
    waitForPictures({1280, 720}, start);
    m_takePicture(u"camera-settings-applied"_s);

    const QSize size = m_driver.window()->size();
    m_driver.window()->resize(smallSize);
    m_takePicture(u"camera-small"_s);
    m_driver.window()->resize(size);
}

void CameraTour::unplugCamera()
{
    say("Camera Management: unplugging the camera that streams");
    const qsizetype start = m_journal.position();
    unplug("Rear Camera");
    m_journal.waitForEvent(u"video-ended"_s, start);
    m_takePicture(u"camera-unplugged"_s);

    unplug("Front Camera");
    waitFor(u"the video file to be the source"_s, [&] {
        return m_driver.item(u"QQuickRadioButton"_s, "text", u"Video file"_s)
            ->property("checked")
            .toBool();
    });
    m_takePicture(u"camera-none"_s);
}

void CameraTour::playVideoFile()
{
    say("Camera Management: playing a video file over and over");
    const qsizetype start = m_journal.position();
    chooseFile(u"vp9.webm"_s, u"Open"_s);
    waitForPictures({320, 240}, start);
    m_takePicture(u"camera-video-file"_s);
    waitFor(u"more pictures than the file has"_s, [&] {
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
    const QQuickItem *field = m_driver.items(u"QQuickTextField"_s).constFirst();
    const QString before = field->property("text").toString();
    chooseFile(u"vp8.webm"_s, u"Cancel"_s);
    if (field->property("text").toString() != before)
        throw WaitingFailed("a file was taken although the dialog was cancelled");
}

void CameraTour::refuseVideoFile()
{
    say("Camera Management: refusing a video file");
    const qsizetype start = m_journal.position();
    chooseFile(u"motion-jpeg.mkv"_s, u"Open"_s);
    m_journal.waitForEvent(u"video-ended"_s, start);
    m_takePicture(u"camera-video-refused"_s);
    m_driver.clickButton(u"OK"_s);
}

void CameraTour::leavePage()
{
    say("Camera Management: leaving the page ends the stream");
    qsizetype start = m_journal.position();
    chooseFile(u"vp8.webm"_s, u"Open"_s);
    waitForPictures({320, 240}, start);
    start = m_journal.position();
    m_driver.clickButton(u"Sensors Values"_s);
    m_journal.waitForEvent(u"video-ended"_s, start);
}

void CameraTour::chooseFile(const QString &name, const QString &button)
{
    // the dialog opens in this folder
    QDir::setCurrent(qEnvironmentVariable("TOUR_VIDEOS"));
    m_driver.clickButton(u"…"_s);
    const WindowDriver dialog = openDialog();
    dialog.click(dialog.item(u"QQuickFileDialogDelegate"_s, "fileName", name));
    m_takePicture(u"camera-file-dialog"_s);
    dialog.clickButton(button);
}

void CameraTour::waitForPictures(QSize size, qsizetype since)
{
    waitFor(u"pictures of %1x%2"_s.arg(size.width()).arg(size.height()), [&] {
        const QList<QJsonObject> entries = m_journal.entriesSince(since);
        return std::ranges::any_of(entries, [&](const QJsonObject &entry) {
            return entry.value(u"event").toString() == u"video"
                   && entry.value(u"width").toInt() == size.width()
                   && entry.value(u"height").toInt() == size.height()
                   && entry.value(u"broken").toInt() == 0;
        });
    });
}
