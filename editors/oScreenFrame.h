#pragma once

#include "controls/oFrame.h"
#include "editors/clsScreenTable.h"

#include <vector>

class clsMnemonics;
class oContentSwitcher;
class oFieldLabel;
class QBoxLayout;
class QGridLayout;

/// A field on a screen.
struct clsScreenField {
    const clsScreenRow *row;
    QWidget *control;
    oFieldLabel *label; ///< null if the field has no caption of its own
    int page = 0; ///< of the frame's switcher, from 1; 0 if the frame has none
};

/// A frame of a screen with its fields, laid out from its table: a label column with the boxes to its right, questions
/// above their answers, hairlines between subjects, and two parts side by side if the table has a break and the window
/// has room.
class oScreenFrame : public oFrame {
    Q_OBJECT

public:
    oScreenFrame(const clsScreenFrame &frame, QWidget *parent);

    const std::vector<clsScreenField> &fields() const { return m_fields; }
    /// The labels that can have a letter, in the order of the table.
    const std::vector<oFieldLabel *> &labels() const { return m_labels; }
    /// Whether one of its boxes grows with the window.
    bool grows() const { return m_grows; }

    /// Assigns the caption a letter, which leads to the first field that can take the focus; in a frame with pages each
    /// page's caption gets one, which also opens the page.
    void giveLetter(clsMnemonics &letters);

    /// The switcher of the frame's pages; null if it has none.
    oContentSwitcher *switcher() const { return m_switcher; }

    /// The width of the label column; 0 for a frame without one, which ignores the common width.
    int labelColumn() const { return m_labelColumn; }
    void setLabelColumn(int width);

    /// Puts the frame's parts side by side or one below the other.
    void setSideBySide(bool sideBySide);
    /// The minimum width with the parts one below the other and nothing cut off.
    int narrowestWidth() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    friend class clsFrameRows;

    void addPages(const clsScreenFrame &frame);
    /// The layout below the side-by-side parts.
    QBoxLayout &belowColumns();
    void giveLetter(oFrame &caption, clsMnemonics &letters, int page);
    void enter(int page);

    std::vector<clsScreenField> m_fields;
    std::vector<oFieldLabel *> m_labels;
    std::vector<QWidget *> m_hairlines;
    std::vector<QGridLayout *> m_grids; ///< of all parts and pages
    QBoxLayout *m_parts;
    QBoxLayout *m_below = nullptr;
    oContentSwitcher *m_switcher = nullptr;
    bool m_grows = false;
    int m_labelColumn = 0;
};
