#pragma once

#include "costing/checking/mdGroupFindings.h"

#include <QListView>
#include <QSet>

class clsSectionDelegate;
class clsSectionModel;

/// All sections of the form with their states. Knows nothing of screens: it only signals which section is wanted.
class oSectionList : public QListView {
    Q_OBJECT

public:
    explicit oSectionList(QWidget *parent = nullptr);

    /// Shows the sections of a form type and keeps the selection.
    void ShowSections(
        const QString &formType, const QSet<QString> &begun, const QHash<QString, clsScreenFindings> &findings);
    /// Shows only the dots, or whole rows.
    void setFolded(bool folded);
    /// The selected section; empty if there is none.
    QString Chosen() const;
    /// Selects a section; does nothing if the form doesn't have it.
    void Choose(const QString &section);
    /// Selects the next or previous section. Does nothing at the ends.
    void Step(bool forward);

signals:
    /// The user wants to open this section's screen.
    void Opened(const QString &section);

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void choose(const QModelIndex &index);
    QModelIndex sectionFrom(int row, int step) const;

    clsSectionModel *m_model;
    clsSectionDelegate *m_delegate;
};
