#include "shell/clsWindowUserInterface.h"

#include "controls/frmMessageBox.h"
#include "controls/oVeil.h"
#include "formdata/clsZR3Form.h"
#include "shell/clsFileSystem.h"
#include "shell/clsLongWork.h"
#include "shell/mdGlobals.h"
#include "shell/oApplication.h"

#include <QAudioDevice>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMediaDevices>
#include <QMessageBox>
#include <QSoundEffect>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int RepaintMilliseconds = 50;

QWidget *activeParent()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

struct clsButtonsRow {
    clsUserInterface::Buttons buttons;
    QMessageBox::StandardButtons shown;
    QMessageBox::StandardButton pressedByEnter;
    QMessageBox::StandardButton pressedByEscape;
};

// Enter never presses what loses something: the question about the database folder is such a box.
constexpr clsButtonsRow ButtonsRows[] = {
    {clsUserInterface::OKOnly, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {clsUserInterface::OKCancel, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel},
    {clsUserInterface::YesNo, QMessageBox::Yes | QMessageBox::No, QMessageBox::No, QMessageBox::No},
    {clsUserInterface::YesNoCancel, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
        QMessageBox::Cancel},
};

QMessageBox::Icon boxIcon(clsUserInterface::SystemIcon icon)
{
    switch (icon) {
    case clsUserInterface::Critical: return QMessageBox::Critical;
    case clsUserInterface::Question: return QMessageBox::Question;
    case clsUserInterface::Information: return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

clsUserInterface::Answer answerOf(int button)
{
    switch (button) {
    case QMessageBox::Ok: return clsUserInterface::OK;
    case QMessageBox::Yes: return clsUserInterface::Yes;
    case QMessageBox::No: return clsUserInterface::No;
    default: return clsUserInterface::Cancel;
    }
}

bool isAddress(const QString &target)
{
    return target.startsWith(QLatin1String("mailto:")) || target.contains(QLatin1String("://"));
}

} // namespace

clsWindowUserInterface::clsWindowUserInterface() = default;
clsWindowUserInterface::~clsWindowUserInterface() = default;

clsUserInterface::Answer clsWindowUserInterface::customMessage(
    const QString &message, const QString &title, Buttons buttons, int icon, int timeout)
{
    if (oApplication::ending())
        return answerThatChangesNothing(buttons);
    clsLongWork::hideWaiting();
    frmMessageBox box(activeParent());
    box.Initialise(message, title, buttons, icon, timeout);
    const oVeil veil(box.parentWidget());
    box.exec();
    return Answer(box.Result());
}

clsUserInterface::Answer clsWindowUserInterface::systemMessage(
    const QString &message, const QString &title, SystemIcon icon, Buttons buttons)
{
    if (oApplication::ending())
        return answerThatChangesNothing(buttons);
    clsLongWork::hideWaiting();
    const clsButtonsRow &row = ButtonsRows[buttons];
    QMessageBox box(boxIcon(icon), title, QString(message).replace(QStringLiteral("\r\n"), QStringLiteral("\n")),
        row.shown, activeParent());
    // Paths and descriptions are shown as they are, whatever they look like, and can be copied.
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setDefaultButton(row.pressedByEnter);
    box.setEscapeButton(row.pressedByEscape);
    const oVeil veil(box.parentWidget());
    return answerOf(box.exec());
}

void clsWindowUserInterface::showProgress(int value, int maximum, const QString &text)
{
    if (m_display.show)
        m_display.show(value, maximum, text);
    clsLongWork::showWaiting();
    letWindowsRepaint();
}

void clsWindowUserInterface::clearProgress()
{
    if (m_display.clear)
        m_display.clear();
}

void clsWindowUserInterface::letWindowsRepaint()
{
    if (m_repainting || oApplication::ending()
        || (m_repainted.isValid() && m_repainted.elapsed() < RepaintMilliseconds))
        return;
    // What a timer starts inside is not to meet the work half done.
    const clsLongWork work;
    m_repainting = true;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_repainting = false;
    m_repainted.start();
}

QString clsWindowUserInterface::startFolder() const
{
    const QString path = Form ? Form->path() : QString();
    const QString ofClaim = path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
    for (const QString &folder :
        {ofClaim, m_lastFolder, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)})
        if (FileSystem().FolderExists(folder))
            return folder;
    return QDir::homePath();
}

QString clsWindowUserInterface::chosen(const QString &path)
{
    if (!path.isEmpty())
        m_lastFolder = QFileInfo(path).isDir() ? path : QFileInfo(path).absolutePath();
    return path;
}

namespace {

QString asked(QFileDialog &dialog)
{
    clsLongWork::hideWaiting();
    const oVeil veil(dialog.parentWidget());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString clsWindowUserInterface::chooseFolder(const QString &prompt)
{
    QFileDialog dialog(activeParent(), prompt, startFolder());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return chosen(asked(dialog));
}

QString clsWindowUserInterface::chooseFileToOpen(const QString &filter)
{
    QFileDialog dialog(activeParent(), QStringLiteral("Open"), startFolder(), filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosen(asked(dialog));
}

QString clsWindowUserInterface::chooseFileToSave(const QString &filter, const QString &defaultExtension)
{
    QFileDialog dialog(activeParent(), QStringLiteral("Save As"), startFolder(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(defaultExtension);
    // The program asks before it overwrites; two questions would be one too many.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    return chosen(asked(dialog));
}

void clsWindowUserInterface::playSound(const QString &path)
{
    // Later, since the first sound wakes the desktop's audio, which can take longer than the box that it announces.
    QTimer::singleShot(0, QCoreApplication::instance(), [this, path, alive = std::weak_ptr(m_alive)] {
        if (alive.expired() || !QFileInfo(path).isFile() || QMediaDevices::defaultAudioOutput().isNull())
            return;
        if (!m_sound)
            m_sound = std::make_unique<QSoundEffect>();
        m_sound->setSource(QUrl::fromLocalFile(path));
        m_sound->play();
    });
}

bool clsWindowUserInterface::openTarget(const QString &target)
{
    if (isAddress(target))
        return QDesktopServices::openUrl(QUrl(target));
    return QFileInfo::exists(target) && QDesktopServices::openUrl(QUrl::fromLocalFile(target));
}
