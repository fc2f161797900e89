#pragma once

#include "controls/oLineBox.h"

class QStringListModel;

/// A text box that suggests texts while the user types, and on Down: those that begin with what is typed, whatever the
/// capitals, and all of them while nothing is typed. The arrow at its end shows all. Nothing typed is ever changed by
/// itself; only a suggestion that is chosen takes its place.
class oTypeAheadBox : public oLineBox {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    explicit oTypeAheadBox(QWidget *parent = nullptr);

    QString Text() const { return text(); }

    /// What is suggested, in this order; a text that comes twice is suggested once.
    void setSuggestions(QStringList suggestions);
    QStringList Suggestions() const;

    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    /// Closes the suggestions before their own filter, which keeps it from the box that the focus has left it.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool suggesting() const;
    void suggest(const QString &beginning);

    QStringListModel *m_suggestions;
    QAction *m_arrow; ///< for the mouse; the keyboard has Down
};
