#pragma once

#include "controls/oLineBox.h"

class QStringListModel;

/// A text box that suggests texts while the user types, and on Down: those that begin with the typed text, ignoring
/// case, and all of them while it is empty. The arrow at its end shows all. Typed text changes only if a suggestion is
/// chosen.
class oTypeAheadBox : public oLineBox {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    explicit oTypeAheadBox(QWidget *parent = nullptr);

    QString Text() const { return text(); }

    /// The suggestions in this order; duplicates are removed.
    void setSuggestions(QStringList suggestions);
    QStringList Suggestions() const;

    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    /// Closes the suggestions before their own filter, which hides the loss of focus from the box.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool suggesting() const;
    void suggest(const QString &beginning);

    QStringListModel *m_suggestions;
    QAction *m_arrow; ///< for the mouse; the keyboard has Down
};
