#include "movebutton.h"

#include "recordingfiles.h"

#include <coreplugin/icore.h>
#include <coreplugin/messagemanager.h>

#include <link/recording.h>

#include <location/movedcopy.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QtConcurrentRun>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

MoveButton::MoveButton(QWidget *parent)
    : QToolButton(parent)
{
    setText(tr("Move to…"));
    setToolTip(tr("Copy a recording or a track to another place, to pass it on"));
    connect(this, &QToolButton::clicked, this, [this] {
        RecordingFiles::askToRead(
            this, tr("Move a Recording or a Track"),
            tr("Recordings and tracks (*%1 *.nmea)").arg(Recording::fileSuffix),
            [this](const QString &path) { askForPlace(path); });
    });
    connect(&m_moving, &QFutureWatcherBase::finished, this, &MoveButton::handleMoved);
}

void MoveButton::askForPlace(const QString &path)
{
    static constexpr int decimals = 6; // 0.1 m
    const auto degrees = [](double limit) {
        auto *box = new QDoubleSpinBox;
        box->setDecimals(decimals);
        box->setRange(-limit, limit);
        box->setSuffix(u"°"_s);
        return box;
    };
    QDoubleSpinBox *latitude = degrees(90);
    QDoubleSpinBox *longitude = degrees(180);
    auto *dialog = new QDialog(Core::ICore::dialogParent());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Move to"));
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *layout = new QFormLayout(dialog);
    layout->addRow(new QLabel(tr("All positions are moved so that the first one lies there.")));
    layout->addRow(tr("Latitude:"), latitude);
    layout->addRow(tr("Longitude:"), longitude);
    layout->addRow(buttons);
    connect(dialog, &QDialog::accepted, this, [this, path, latitude, longitude] {
        askForTarget(path, {.latitude = latitude->value(), .longitude = longitude->value()});
    });
    dialog->open();
    latitude->selectAll();
}

void MoveButton::askForTarget(const QString &path, const Place &place)
{
    const QString suffix = path.endsWith(u".nmea"_s) ? u".nmea"_s : Recording::fileSuffix;
    RecordingFiles::askToWrite(
        this, tr("Save the Moved Copy"), suffix,
        [this, path, place](const QString &target) { move(path, place, target); });
}

void MoveButton::move(const QString &path, const Place &place, const QString &target)
{
    m_target = target;
    setEnabled(false);
    m_moving.setFuture(QtConcurrent::run(&MovedCopy::writeFile, path, place, target));
}

void MoveButton::handleMoved()
{
    setEnabled(true);
    const QString error = m_moving.result();
    if (error.isEmpty())
        Core::MessageManager::writeFlashing(tr("The moved copy is \"%1\".").arg(m_target));
    else
        Core::MessageManager::writeDisrupting(
            tr("The copy \"%1\" was not written. %2").arg(m_target, error));
}

} // namespace EmulationManagement::Internal
