#pragma once

#include "costing/tables/clsCodeWords.h"

#include <QElapsedTimer>
#include <QObject>

class QComboBox;
class QLabel;

/// The drop-down list of the codes. Beside each code it shows the bill's column and the firm's words, which can be
/// found by typing; below is a button that opens the words for editing. The texts of the list itself are the codes.
class clsCodeList : public QObject {
    Q_OBJECT

public:
    explicit clsCodeList(QComboBox &box);

    /// The caption of the bill's column for work with this code.
    static QString ColumnOf(const QString &code);
    /// The column and the words, with a gap between; empty for an invalid code.
    QString InWords(const QString &code) const;

    /// Makes the list wide enough for the words; call before it opens.
    void MakeRoom();
    /// Shows the button below the open list.
    void ShowFoot();

signals:
    void WordsChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void readWords();
    void makeFoot();
    void edit();
    bool takesKey(int key, const QString &text);
    int rowOfWords(const QString &typed) const;

    QComboBox &m_box;
    clsCodeWords m_words;
    QWidget *m_foot = nullptr;
    QLabel *m_wrongLines = nullptr;
    QString m_typed;
    QElapsedTimer m_sinceKey;
};
