#pragma once

#include <QHeaderView>

/// The headings of the list of claims. A click or Enter sorts by a heading; Left and Right move between them.
class oFolderHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit oFolderHeader(QWidget *parent = nullptr);

    QSize sizeHint() const override;

signals:
    void SortAsked(int section);

protected:
    void paintSection(QPainter *painter, const QRect &rectangle, int section) const override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void goTo(int section);
    void step(int direction);
    void tell();

    int m_at = 0; ///< the heading with the focus
};
