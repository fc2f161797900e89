#include "shell/clsWindowUserInterface.h"

#include "controls/frmMessageBox.h"
#include "controls/oVeil.h"
#include "formdata/clsZR3Form.h"
#include "shell/clsFileSystem.h"
#include "shell/clsLongWork.h"
#include "shell/mdFileHandling.h"
#include "shell/mdGlobals.h"
#include "shell/oApplication.h"

#include <QAudioDevice>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
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
    if (QWidget *active = QApplication::activeWindow())
        return active;
    // Another program is in front. A box without a window of its own would come up as one more window beside ours.
    for (QWidget *window : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow *>(window) && window->isVisible())
            return window;
    return nullptr;
}

/// A filter as the commands give it, "text|pattern", again and again for more than one, as the toolkit's dialog takes
/// it: the patterns in brackets at the end of the text, where many texts have them already.
QStringList nameFilters(const QString &filter)
{
    const QStringList pieces = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i < pieces.size(); i += 2) {
        const QString patterns = pieces.value(i + 1).replace(u';', u' ');
        const QString brackets = u'(' + patterns + u')';
        const bool whole = patterns.isEmpty() || pieces[i].endsWith(brackets);
        filters << (whole ? pieces[i] : pieces[i] + u' ' + brackets);
    }
    return filters;
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
    // A box that the program's end has closed was not answered.
    return oApplication::ending() ? answerThatChangesNothing(buttons) : Answer(box.Result());
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
    const int pressed = box.exec();
    return oApplication::ending() ? answerThatChangesNothing(buttons) : answerOf(pressed);
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
    const QString path = Form ? FormFilePath() : QString();
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

/// The dialog itself adds an extension only to a name without any dot: "Smith v. Jones" has one.
QString withExtension(const QString &path, const QString &extension)
{
    return path.isEmpty() || path.endsWith(extension, Qt::CaseInsensitive) ? path : path + extension;
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
    QFileDialog dialog(activeParent(), QStringLiteral("Open"), startFolder());
    dialog.setNameFilters(nameFilters(filter));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosen(asked(dialog));
}

QString clsWindowUserInterface::chooseFileToSave(const QString &filter, const QString &defaultExtension)
{
    QFileDialog dialog(activeParent(), QStringLiteral("Save As"), startFolder());
    dialog.setNameFilters(nameFilters(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(defaultExtension);
    // The program asks before it overwrites; two questions would be one too many.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    return chosen(withExtension(asked(dialog), defaultExtension));
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
