#pragma once

#include "costing/checking/mdGroupFindings.h"

#include <QListView>
#include <QSet>

class clsSectionDelegate;
class clsSectionModel;

/// All sections of the form, and how each stands. It knows nothing of screens: it says which section is wanted.
class oSectionList : public QListView {
    Q_OBJECT

public:
    explicit oSectionList(QWidget *parent = nullptr);

    /// Shows the sections of a form type. The chosen one stays chosen.
    void ShowSections(
        const QString &formType, const QSet<QString> &begun, const QHash<QString, clsScreenFindings> &findings);
    /// Shows the dots alone, or the rows whole.
    void setFolded(bool folded);
    /// The chosen section; empty where none is.
    QString Chosen() const;
    /// Chooses a section; nothing for one that the form doesn't have.
    void Choose(const QString &section);
    /// Chooses the section behind or before the chosen one. At the ends nothing happens.
    void Step(bool forward);

signals:
    /// The user wants the screen of this section.
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
