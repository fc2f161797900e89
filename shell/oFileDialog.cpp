#include "shell/oFileDialog.h"

#include "controls/mdShowModal.h"
#include "controls/mdTheme.h"
#include "shell/clsLongWork.h"

#include <QDir>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QTreeView>

namespace {

// For a 10-point desktop font.
constexpr int Width = 860;
constexpr int Height = 520;
constexpr int NarrowestColumn = 80;

} // namespace

oFileDialog::oFileDialog(QWidget *parent, const QString &caption, const QString &folder)
    : QFileDialog(parent, caption, folder)
{
    resize(Theme::scaled(Width), Theme::scaled(Height));
}

QString oFileDialog::Choose()
{
    clsLongWork::hideWaiting();
    return mdShowModal(*this) == Accepted ? QDir::cleanPath(selectedFiles().value(0)) : QString();
}

void oFileDialog::accept()
{
    // While a path is typed the toolkit's dialog selects the folders on its way, may keep one selected, and prefers the
    // selection to the typed text.
    const auto *name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    auto *list = findChild<QListView *>(QStringLiteral("listView"));
    if (name && list && !name->text().isEmpty()
        && selectedFiles() != QStringList(directory().absoluteFilePath(name->text())))
        list->clearSelection();
    QFileDialog::accept();
}

void oFileDialog::showEvent(QShowEvent *event)
{
    QFileDialog::showEvent(event);
    // Set here, because the dialog first restores the widths of its last use.
    auto *details = findChild<QTreeView *>(QStringLiteral("treeView"));
    auto *places = findChild<QListView *>(QStringLiteral("sidebar"));
    if (!details || !places)
        return;
    places->setMinimumWidth(places->sizeHintForColumn(0) + 2 * places->frameWidth());
    details->header()->setMinimumSectionSize(Theme::scaled(NarrowestColumn));
    details->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    details->header()->setStretchLastSection(false); // otherwise limited to the remaining width
}
