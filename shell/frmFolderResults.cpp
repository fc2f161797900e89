#include "shell/frmFolderResults.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "controls/oButtonBar.h"
#include "controls/oCustomButton.h"
#include "controls/oHeaderBar.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int ResultsWidth = 1000;
constexpr int ResultsHeight = 560;
constexpr int WidestColumn = 240;

/// Reads the rows without copying them: a check of many claims has many thousands.
class clsResultsModel : public QAbstractTableModel {
public:
    clsResultsModel(const clsFolderResults &results, QObject *parent)
        : QAbstractTableModel(parent)
        , m_results(results)
    { }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_results.rows.size());
    }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_results.headings.size());
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        const QString text = m_results.rows[size_t(index.row())].value(index.column());
        switch (role) {
        case Qt::DisplayRole: return text.simplified();
        case Qt::ToolTipRole: return mdPlainToolTip(text);
        default: return {};
        }
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        return orientation == Qt::Horizontal && role == Qt::DisplayRole ? m_results.headings.value(section)
                                                                        : QVariant();
    }

private:
    const clsFolderResults &m_results;
};

oCustomButton *buttonOf(const char *name, const QString &caption, QWidget *parent)
{
    auto *button = new oCustomButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setCaption(caption);
    return button;
}

} // namespace

frmFolderResults::frmFolderResults(const clsFolderResults &results, QWidget *parent)
    : QDialog(parent)
    , m_results(results)
    , m_table(new QTableView(this))
{
    setObjectName(QStringLiteral("frmFolderResults"));
    setWindowTitle(results.caption);
    auto *header = new oHeaderBar(this);
    header->setObjectName(QStringLiteral("oHeader"));
    header->setCaption(results.caption);
    header->setSubCaption(results.subCaption);
    fill();
    auto *bar = new oButtonBar(this);
    if (m_results.open) {
        auto *open = buttonOf("cmdShow", m_results.openCaption, this);
        open->setEnabled(!m_results.rows.empty());
        connect(open, &oCustomButton::Click, this, &frmFolderResults::openRow);
        bar->AddLeft(open);
    }
    auto *close = buttonOf("cmdClose", QStringLiteral("&Close"), this);
    close->setLook(oCustomButton::Look::Default);
    connect(close, &oCustomButton::Click, this, &QDialog::accept);
    bar->AddButton(close);
    oButtonBar::layOut(*this, header, m_table, bar);
    // The table takes all remaining height.
    static_cast<QBoxLayout *>(layout()->itemAt(1)->layout())->setStretchFactor(m_table, 1);
    m_table->setCurrentIndex(m_table->model()->index(0, 0));
    m_table->setFocus();
}

QSize frmFolderResults::sizeHint() const
{
    return {Theme::scaled(ResultsWidth), Theme::scaled(ResultsHeight)};
}

void frmFolderResults::fill()
{
    m_table->setObjectName(QStringLiteral("tblResults"));
    m_table->setAccessibleName(m_results.caption);
    m_table->setModel(new clsResultsModel(m_results, this));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(mdGridRowHeight());
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setStretchLastSection(true);
    // Measures only the visible rows.
    m_table->resizeColumnsToContents();
    for (int column = 0; column + 1 < m_table->model()->columnCount(); ++column)
        m_table->setColumnWidth(
            column, std::min(Theme::scaled(WidestColumn), m_table->columnWidth(column) + Theme::Space16));
    m_table->installEventFilter(this);
    connect(m_table, &QAbstractItemView::doubleClicked, this, &frmFolderResults::openRow);
}

bool frmFolderResults::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_results.open) {
        const int key = static_cast<const QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            openRow();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmFolderResults::openRow()
{
    if (m_results.open && m_table->currentIndex().isValid())
        m_results.open(m_table->currentIndex().row(), this);
}
