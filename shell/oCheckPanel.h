#pragma once

#include <QWidget>

class QLabel;
class QStackedLayout;
class clsCheckState;
class oCheckList;
class oCloseButton;

/// The findings of the check, beside the preview: a heading with the counts, and the list or, without findings, a short
/// text.
class oCheckPanel : public QWidget {
    Q_OBJECT

public:
    explicit oCheckPanel(clsCheckState &state, QWidget *parent = nullptr);

    oCheckList *List() const { return m_list; }
    /// Sets the focus to the list, or to the close button if there is no list.
    void TakeFocus();

    QSize sizeHint() const override;

signals:
    void CloseAsked();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void build();
    void takeFonts();
    void showFindings();
    void showCounts();

    clsCheckState &m_state;
    QLabel *lblCaption;
    QLabel *lblCounts;
    QLabel *lblTrouble;
    QWidget *m_nothing;
    QLabel *lblNothing;
    oCheckList *m_list;
    oCloseButton *cmdClose; ///< created after the list, and so after it in the tab order
    QStackedLayout *m_pages;
};
