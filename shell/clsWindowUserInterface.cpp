#include "shell/clsWindowUserInterface.h"

#include "base/clsFileSystem.h"
#include "base/mdShellExecute.h"
#include "commands/mdFileHandling.h"
#include "controls/frmMessageBox.h"
#include "controls/mdShowModal.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "shell/clsLongWork.h"
#include "shell/mdOpenOnDesktop.h"
#include "shell/oApplication.h"
#include "shell/oFileDialog.h"

#include <QAudioDevice>
#include <QDir>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int RepaintMilliseconds = 50;

/// Converts a filter "text|pattern|text|pattern..." to the form of the toolkit's dialog, with the patterns in brackets
/// after the text, unless the text already has them there.
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

/// Shows a box and returns the user's answer.
clsUserInterface::Answer answered(
    clsUserInterface::Buttons buttons, const std::function<void(frmMessageBox &box)> &initialise)
{
    if (oApplication::ending())
        return clsUserInterface::answerThatChangesNothing(buttons);
    clsLongWork::hideWaiting();
    frmMessageBox box(mdWindowInFront());
    initialise(box);
    mdShowModal(box);
    // A box closed by the program's end was not answered.
    return oApplication::ending() ? clsUserInterface::answerThatChangesNothing(buttons) : box.Result();
}

bool isAddress(const QString &target)
{
    return target.startsWith(QLatin1String("mailto:")) || target.contains(QLatin1String("://"));
}

/// The dialog adds an extension only to names without a dot, such as not to "Smith v. Jones".
QString withExtension(const QString &path, const QString &extension)
{
    return path.isEmpty() || path.endsWith(extension, Qt::CaseInsensitive) ? path : path + extension;
}

} // namespace

clsWindowUserInterface::clsWindowUserInterface() = default;
clsWindowUserInterface::~clsWindowUserInterface() = default;

clsUserInterface::Answer clsWindowUserInterface::customMessage(
    const QString &message, const QString &title, Buttons buttons, int icon, int timeout)
{
    return answered(buttons, [&](frmMessageBox &box) { box.Initialise(message, title, buttons, icon, timeout); });
}

clsUserInterface::Answer clsWindowUserInterface::systemMessage(
    const QString &message, const QString &title, SystemIcon icon, Buttons buttons)
{
    return answered(buttons, [&](frmMessageBox &box) { box.InitialiseSystem(message, title, buttons, icon); });
}

void clsWindowUserInterface::tellLine(const QString &line)
{
    if (m_display.line)
        m_display.line(line);
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
    // Timers that fire during the repaint must see that work is running.
    const clsLongWork work;
    m_repainting = true;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_repainting = false;
    m_repainted.start();
}

QString clsWindowUserInterface::startFolder(const QString &wanted) const
{
    const QString path = Form ? Document().filePath() : QString();
    const QString ofClaim = path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
    for (const QString &folder :
        {wanted, ofClaim, m_lastFolder, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)})
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

QString clsWindowUserInterface::chooseFolder(const QString &prompt, const QString &start)
{
    oFileDialog dialog(mdWindowInFront(), prompt, startFolder(start));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return chosen(dialog.Choose());
}

QString clsWindowUserInterface::chooseFileToOpen(const QString &filter)
{
    oFileDialog dialog(mdWindowInFront(), QStringLiteral("Open"), startFolder());
    dialog.setNameFilters(nameFilters(filter));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosen(dialog.Choose());
}

QString clsWindowUserInterface::chooseFileToSave(const QString &filter, const QString &defaultExtension)
{
    oFileDialog dialog(mdWindowInFront(), QStringLiteral("Save As"), startFolder());
    dialog.setNameFilters(nameFilters(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(defaultExtension);
    // The program itself asks before it overwrites.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    return chosen(withExtension(dialog.Choose(), defaultExtension));
}

QString clsWindowUserInterface::chooseFileToExport(
    const QString &filter, const QString &extension, const QString &proposed)
{
    oFileDialog dialog(mdWindowInFront(), QStringLiteral("Export"), startFolder(QFileInfo(proposed).path()));
    dialog.setNameFilters(nameFilters(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(extension);
    dialog.selectFile(QFileInfo(proposed).fileName());
    const QString given = dialog.Choose();
    const QString path = withExtension(given, extension);
    // The dialog has only asked about the typed name, not the one with the extension.
    if (path.isEmpty() || (path != given && !ConfirmOverwrite(path)))
        return {};
    return chosen(path);
}

void clsWindowUserInterface::playSound(const QString &path)
{
    // Delayed: the first sound starts the desktop's audio, which can take longer than opening the box.
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
    const bool address = isAddress(target);
    if (!address && !QFileInfo::exists(target))
        return false;
    return mdOpenOnDesktop(address ? QUrl(target) : QUrl::fromLocalFile(target), [target] { TellNotOpened(target); });
}
