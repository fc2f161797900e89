#pragma once

#include <QHeaderView>

#include <vector>

class clsPasteModel;
class QComboBox;

/// The headings of the rows that are looked at before they are stored: over each column of the table a list of what it
/// can mean.
class oPasteHeader : public QHeaderView {
    Q_OBJECT

public:
    oPasteHeader(clsPasteModel &model, QWidget *parent);

    /// Puts the lists where their columns are.
    void Place();
    /// What the heading of a column needs.
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
