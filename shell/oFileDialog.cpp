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

// At a desktop font of 10 points.
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
    // The toolkit's dialog selects the folders on the way while a path is typed, may keep one of them selected, and
    // takes what is selected before what is typed.
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
    // Here, since the dialog first restores the widths of its last use.
    auto *details = findChild<QTreeView *>(QStringLiteral("treeView"));
    auto *places = findChild<QListView *>(QStringLiteral("sidebar"));
    if (!details || !places)
        return;
    places->setMinimumWidth(places->sizeHintForColumn(0) + 2 * places->frameWidth());
    details->header()->setMinimumSectionSize(Theme::scaled(NarrowestColumn));
    details->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    details->header()->setStretchLastSection(false); // it would take what is left, and no more
}
