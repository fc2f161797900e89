#pragma once

#include "controls/oFrame.h"
#include "editors/clsScreenTable.h"

#include <vector>

class clsMnemonics;
class oContentSwitcher;
class oFieldLabel;
class QBoxLayout;
class QGridLayout;

/// A field as it stands on a screen.
struct clsScreenField {
    const clsScreenRow *row;
    QWidget *control;
    oFieldLabel *label; ///< nothing where the field has no caption of its own
    int page = 0; ///< of the frame's switcher, from 1; 0 where the frame has none
};

/// A frame of a screen with its fields, laid out from its table: a column of labels with the boxes beside it, questions
/// over their answers, hairlines where the subject changes, and two parts side by side where the table has a break and
/// the window the room.
class oScreenFrame : public oFrame {
    Q_OBJECT

public:
    oScreenFrame(const clsScreenFrame &frame, QWidget *parent);

    const std::vector<clsScreenField> &fields() const { return m_fields; }
    /// The labels that can be given a letter, in the order of the table.
    const std::vector<oFieldLabel *> &labels() const { return m_labels; }
    /// Whether a box in it grows with the window.
    bool grows() const { return m_grows; }

    /// Gives the caption a letter, which leads to the first field that can take the focus; with pages, each of their
    /// captions, which opens its page first.
    void giveLetter(clsMnemonics &letters);

    /// Of the frame's pages; nothing where it has none.
    oContentSwitcher *switcher() const { return m_switcher; }

    /// The width of the column of labels; 0 for a frame without one, which then has no use for another's.
    int labelColumn() const { return m_labelColumn; }
    void setLabelColumn(int width);

    /// Puts the parts of the frame side by side, or one below the other.
    void setSideBySide(bool sideBySide);
    /// The width below which something would be cut, with the parts one below the other.
    int narrowestWidth() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    friend class clsFrameRows;

    void addPages(const clsScreenFrame &frame);
    /// What stands below the parts side by side.
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
