#pragma once

#include "costing/tables/clsCodeWords.h"

#include <QElapsedTimer>
#include <QObject>

class QComboBox;
class QLabel;

/// The open list of the codes: behind each code the column of the bill in which it stands and the firm's words, which
/// typing finds, and beneath them the button that opens these words to be changed. The list's own texts are the codes.
class clsCodeList : public QObject {
    Q_OBJECT

public:
    explicit clsCodeList(QComboBox &box);

    /// The caption of the column in which the work of a code stands.
    static QString ColumnOf(const QString &code);
    /// The column and the words, with a gap between; empty for what is no code.
    QString InWords(const QString &code) const;

    /// Makes room for the words, before the list opens.
    void MakeRoom();
    /// Puts the button beneath the open list.
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
