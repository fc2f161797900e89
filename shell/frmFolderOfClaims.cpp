#include "shell/frmFolderOfClaims.h"

#include "base/mdClock.h"
#include "base/mdGetFolder.h"
#include "base/mdLog.h"
#include "base/mdStateFile.h"
#include "controls/mdShowModal.h"
#include "controls/mdToolTip.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oHeaderBar.h"
#include "controls/oLineBox.h"
#include "shell/clsFolderActions.h"
#include "shell/clsFolderReader.h"
#include "shell/oFolderHeader.h"
#include "shell/oFolderTable.h"
#include "shell/oFolderTotals.h"

#include <QAccessible>
#include <QDir>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>

#include <utility>

namespace {

constexpr char StateName[] = "Folder.json";
constexpr int PathLength = 90; ///< the longest path that the header shows, in characters

QString claimsInWords(qsizetype count)
{
    return count == 1 ? QStringLiteral("1 claim") : QStringLiteral("%1 claims").arg(count);
}

/// Shortens a long path by leaving out its middle.
QString shortened(const QString &path)
{
    if (path.size() <= PathLength)
        return path;
    constexpr int Half = PathLength / 2;
    return path.left(Half) + QStringLiteral("...") + path.right(Half);
}

/// Announces the words to a screen reader.
void announce(QLabel &label)
{
    QAccessibleEvent event(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace

frmFolderOfClaims::frmFolderOfClaims(const QString &folder, QWidget *parent, const QString &tool)
    : QDialog(parent)
    , m_model(new clsFolderModel(this))
    , m_claims(new clsShownClaims(*m_model, this))
    , m_reader(new clsFolderReader(this))
    , m_actions(new clsFolderActions(*m_model, this))
{
    setObjectName(QStringLiteral("frmFolderOfClaims"));
    setWindowTitle(QStringLiteral("Folder of Claims"));
    WriteLog(objectName() + QStringLiteral(" Opened"));
    if (!tool.isEmpty())
        m_reader->tool = m_actions->Work().tool = tool;
    build();
    connectAll();
    restore(folder);
}

frmFolderOfClaims::~frmFolderOfClaims() = default;

void frmFolderOfClaims::connectAll()
{
    connect(m_reader, &clsFolderReader::Arrived, this, &frmFolderOfClaims::take);
    connect(m_actions, &clsFolderActions::Told, this, &frmFolderOfClaims::tell);
    connect(&m_actions->Work(), &clsFolderWork::Progress, this, &frmFolderOfClaims::showProgress);
    connect(&m_actions->Work(), &clsFolderWork::Changed, this, &frmFolderOfClaims::showButtons);
    connect(m_table, &oFolderTable::OpenAsked, this, &frmFolderOfClaims::openRow);
    connect(m_table, &oFolderTable::MenuAsked, this, &frmFolderOfClaims::showMenu);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmFolderOfClaims::showChosen);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this, &frmFolderOfClaims::showButtons);
    connect(txtFilter, &QLineEdit::textChanged, this, [this](const QString &words) {
        m_claims->setWords(words);
        showState();
    });
    connect(chkOnlyWithErrors, &oCheckBox::Click, this, [this](bool only) {
        m_claims->setOnlyWithErrors(only);
        showState();
    });
    txtFilter->installEventFilter(this);
    const auto click = [this](oCustomButton *button, auto does) { connect(button, &oCustomButton::Click, this, does); };
    click(cmdChooseFolder, [this] { chooseFolder(); });
    click(cmdOpen, [this] { openRow(); });
    click(cmdCheck, [this] { m_actions->Check(chosenPaths()); });
    click(cmdCompare, [this] { compareChosen(); });
    click(cmdExport, [this] { exportChosen(false); });
    click(cmdExportAsPdf, [this] { exportChosen(true); });
    click(cmdClose, [this] { reject(); });
    click(cmdCancel, [this] { m_actions->Work().Cancel(); });
    click(cmdReplace, [this] { std::exchange(m_replace, {})(); });
    click(cmdDetails, [this] { m_details(); });
}

void frmFolderOfClaims::restore(const QString &folder)
{
    const QJsonObject kept = mdReadStateObject(QString::fromLatin1(StateName)).value_or(QJsonObject());
    const int column = std::clamp(kept[QLatin1String("Sort")].toInt(), 0, int(clsFolderModel::Columns) - 1);
    m_table->Header()->setSortIndicator(column, Qt::DescendingOrder); // which the next line turns, or does not
    if (kept[QLatin1String("Descending")].toBool())
        m_table->Header()->setSortIndicator(column, Qt::AscendingOrder);
    m_table->SortBy(column);
    if (const QSize size(kept[QLatin1String("Width")].toInt(), kept[QLatin1String("Height")].toInt()); !size.isEmpty())
        resize(size);
    const QString last = kept[QLatin1String("Folder")].toString();
    ShowFolder(last.isEmpty() ? folder : last);
}

void frmFolderOfClaims::keep() const
{
    QJsonObject kept;
    kept.insert(QStringLiteral("Folder"), m_folder);
    kept.insert(QStringLiteral("Sort"), m_table->Header()->sortIndicatorSection());
    kept.insert(QStringLiteral("Descending"), m_table->Header()->sortIndicatorOrder() == Qt::DescendingOrder);
    kept.insert(QStringLiteral("Width"), width());
    kept.insert(QStringLiteral("Height"), height());
    mdWriteStateFile(QString::fromLatin1(StateName), QJsonDocument(kept).toJson());
}

void frmFolderOfClaims::done(int result)
{
    keep();
    m_reader->Stop();
    m_actions->Work().Cancel();
    QDialog::done(result);
}

void frmFolderOfClaims::ShowFolder(const QString &folder)
{
    m_folder = folder.isEmpty() ? QString() : QDir::cleanPath(folder);
    m_trouble.clear();
    m_readAt.clear();
    m_model->Clear(m_folder);
    m_reader->Stop();
    if (!m_folder.isEmpty())
        m_reader->Start(m_folder);
    showState();
    if (m_folder.isEmpty())
        cmdChooseFolder->setFocus();
    else
        m_table->setFocus();
}

void frmFolderOfClaims::take(const clsFolderNews &news)
{
    m_table->KeepPlace([&] {
        m_model->Take(news.rows);
        m_model->Remove(news.gone);
    });
    m_trouble = news.trouble;
    const bool isFirst = news.isUpToDate && m_readAt.isEmpty();
    if (news.isUpToDate)
        m_readAt = Now().toString(QStringLiteral("HH:mm"));
    if (!m_table->currentIndex().isValid() && m_claims->rowCount() > 0)
        m_table->selectionModel()->setCurrentIndex(m_claims->index(0, 0), QItemSelectionModel::NoUpdate);
    showState();
    if (isFirst)
        announce(*lblState);
}

/// The texts of the header and of the line above the list, about the folder as a whole.
void frmFolderOfClaims::showState()
{
    if (m_folder.isEmpty()) {
        m_header->setSubCaption(QStringLiteral("What the claims of a folder are worth, and what is wrong with them"));
        lblState->clear();
        m_table->setEmptyText(QStringLiteral("Choose a folder to see its claims."));
    } else {
        QString told = QStringLiteral("%1 and the folders below it: %2")
                           .arg(shortened(QDir::toNativeSeparators(m_folder)), claimsInWords(m_model->rowCount()));
        if (const int unread = m_model->UnreadCount(); unread > 0)
            told += QStringLiteral(", %1 cannot be read").arg(unread);
        m_header->setSubCaption(told);
        m_header->setToolTip(mdPlainToolTip(QDir::toNativeSeparators(m_folder)));
        lblState->setText(!m_trouble.isEmpty() ? QStringLiteral("Not up to date")
                : m_readAt.isEmpty()           ? QStringLiteral("Reading...")
                                               : QStringLiteral("Read at %1; kept up to date").arg(m_readAt));
        m_table->setEmptyText(!m_trouble.isEmpty() ? m_trouble
                : m_readAt.isEmpty()               ? QStringLiteral("Reading the claims...")
                : m_model->rowCount() > 0          ? QStringLiteral("No claim matches the filter.")
                                                   : QStringLiteral("No claims in this folder."));
        lblState->setToolTip(mdPlainToolTip(m_trouble));
    }
    showChosen();
}

void frmFolderOfClaims::showChosen()
{
    const QList<int> chosen = m_table->ChosenRows();
    const int shown = m_claims->rowCount();
    if (chosen.isEmpty())
        m_totals->Show(claimsInWords(shown), m_claims->SumsOfAll());
    else
        m_totals->Show(
            QStringLiteral("%1 of %2 chosen").arg(chosen.size()).arg(claimsInWords(shown)), m_claims->Sums(chosen));
    showButtons();
}

void frmFolderOfClaims::showButtons()
{
    QWidget *focused = focusWidget();
    const bool isChosen = m_table->selectionModel()->hasSelection();
    const bool isRunning = m_actions->Work().isRunning();
    cmdOpen->setEnabled(m_table->currentIndex().isValid());
    cmdCheck->setEnabled(isChosen);
    cmdCompare->setEnabled(isChosen);
    cmdExport->setEnabled(isChosen && !isRunning);
    cmdExportAsPdf->setEnabled(isChosen && !isRunning);
    const QString why = isChosen ? QString() : QStringLiteral("Choose one or more claims first.");
    for (oCustomButton *button : {cmdCheck, cmdCompare, cmdExport, cmdExportAsPdf})
        button->setToolTip(why);
    pbProgress->setVisible(isRunning);
    cmdCancel->setVisible(isRunning);
    if (isRunning) {
        cmdReplace->hide();
        cmdDetails->hide();
    }
    // From a disabled or hidden button, the toolkit would move the focus to the next one, which is "Close".
    if (focused && (!focused->isEnabled() || focused->isHidden()))
        m_table->setFocus();
}

void frmFolderOfClaims::showProgress(const QString &what, int done, int all)
{
    m_progress->show();
    pbProgress->setRange(0, all);
    pbProgress->setValue(done);
    if (lblProgress->text() == what)
        return;
    lblProgress->setText(what);
    if (done == 0)
        announce(*lblProgress);
}

void frmFolderOfClaims::tell(const clsFolderOutcome &outcome)
{
    m_replace = outcome.replace;
    m_details = [this, details = outcome.details] {
        frmFolderResults window(*details, this);
        mdShowModal(window);
    };
    if (m_actions->Work().isRunning()) {
        // The next run shows itself, and the failure is told when that has ended.
        if (outcome.hasFailed)
            m_failures << outcome.text;
        return;
    }
    QStringList texts = std::exchange(m_failures, {});
    if (!outcome.text.isEmpty())
        texts << outcome.text;
    m_progress->setVisible(!texts.isEmpty());
    lblProgress->setText(texts.join(QStringLiteral("; ")));
    cmdReplace->setVisible(bool(outcome.replace));
    cmdDetails->setVisible(outcome.details.has_value());
    announce(*lblProgress);
}

bool frmFolderOfClaims::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == txtFilter && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down) {
            m_table->setFocus();
            return true;
        }
        if (key == Qt::Key_Escape && !txtFilter->text().isEmpty()) {
            txtFilter->clear();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmFolderOfClaims::showMenu(const QPoint &place)
{
    QMenu menu(this);
    for (oCustomButton *button : {cmdOpen, cmdCheck, cmdCompare, cmdExport, cmdExportAsPdf}) {
        QAction *action = menu.addAction(button->Caption());
        action->setEnabled(button->isEnabled());
        connect(action, &QAction::triggered, button, &QAbstractButton::click);
    }
    menu.exec(place);
}

void frmFolderOfClaims::chooseFolder()
{
    const QString folder = GetFolder(QStringLiteral("Choose a folder of claims"), m_folder);
    if (!folder.isEmpty())
        ShowFolder(folder);
}

void frmFolderOfClaims::openRow()
{
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    m_chosenClaim = m_claims->RowAt(current.row()).path;
    accept();
}

QStringList frmFolderOfClaims::chosenPaths() const
{
    QStringList paths;
    for (const int row : m_table->ChosenRows())
        paths << m_claims->RowAt(row).path;
    return paths;
}

void frmFolderOfClaims::exportChosen(bool pdf)
{
    const QStringList paths = chosenPaths();
    const QString target = GetFolder(QStringLiteral("Choose the folder for the documents"), m_folder);
    if (!target.isEmpty())
        m_actions->Export(paths, target, pdf);
}

/// Compares two chosen claims with each other; otherwise the chosen claims with those of another folder.
void frmFolderOfClaims::compareChosen()
{
    const QList<int> rows = m_table->ChosenRows();
    if (rows.size() == 2) {
        const clsFolderRow &one = m_claims->RowAt(rows[0]);
        const clsFolderRow &two = m_claims->RowAt(rows[1]);
        const bool isLater = one.changed > two.changed;
        m_actions->CompareTwo((isLater ? two : one).path, (isLater ? one : two).path);
        return;
    }
    // Taken before the question, since the list follows the files meanwhile.
    const QStringList paths = chosenPaths();
    const QString other = GetFolder(QStringLiteral("Choose the folder to compare with"), m_folder);
    if (!other.isEmpty())
        m_actions->CompareWith(paths, m_folder, other);
}
