#pragma once

#include <QHeaderView>

#include <vector>

class clsPasteModel;
class QComboBox;

/// The headings of the rows to be imported: above each column of the table a list of its possible meanings.
class oPasteHeader : public QHeaderView {
    Q_OBJECT

public:
    oPasteHeader(clsPasteModel &model, QWidget *parent);

    /// Moves the lists above their columns.
    void Place();
    /// The width needed by a column's heading.
    int WidthFor(int section) const;
    /// The lists, from left to right.
    const std::vector<QComboBox *> &Lists() const { return m_lists; }

    QSize sizeHint() const override;

protected:
    void paintSection(QPainter *painter, const QRect &rectangle, int section) const override;
    void updateGeometries() override;

private:
    void addList(int place);
    void showMeanings();

    clsPasteModel &m_model;
    std::vector<QComboBox *> m_lists;
};
