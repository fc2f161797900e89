#pragma once

#include "tests/window/mdEveryFieldTables.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <string>
#include <vector>

/// A value given to a field, and where it is stored.
struct clsMark {
    std::string where; ///< for messages: screen, control and item
    std::string path; ///< of the element in the claim
    QByteArray content; ///< of the element, as in the file
    QString shown; ///< by the control
    char kind;
};

/// Gives every field of the claim a unique value and records it: what the user types, what the file must then contain
/// and what the control must show are derived from the expected tables, independently of the program.
class clsFieldMarks {
public:
    /// Among ticks that exclude each other, the one at this index is clicked last, or the last if there are fewer. The
    /// other ticks are distinguished by the indices of their fields in the table: those with a certain bit set are
    /// clicked twice.
    clsFieldMarks(size_t tickedPlace, unsigned twiceBit, std::vector<clsChosen> chosen)
        : m_tickedPlace(tickedPlace)
        , m_twiceBit(twiceBit)
        , m_chosen(std::move(chosen))
    { }

    /// The text that the user types into a text, date, amount, number or time field; records it.
    QString typed(const clsExpectedScreen &screen, const clsExpectedField &field, int item);
    /// How often a tick is clicked.
    int clicksOf(const clsExpectedScreen &screen, const clsExpectedField &field) const;
    /// Records a tick clicked `clicksOf` times, and the ticks that exclude it.
    void clicked(const clsExpectedScreen &screen, const clsExpectedField &field, int item);
    /// Records the choice in a list, and the tick before it, if any.
    void chosen(const clsExpectedScreen &screen, const clsChosen &row);

    /// The tick of an exclusive group that stays set.
    const char *tickedOf(const clsExclusiveTicks &group) const;
    /// The expected choice, if the field is a list or similar.
    const clsChosen *choiceOf(const clsExpectedScreen &screen, const clsExpectedField &field, int item) const;
    /// The exclusive group of a tick; null for an independent one.
    static const clsExclusiveTicks *exclusivesOf(const clsExpectedScreen &screen, const clsExpectedField &field);

    /// The marks of a field; a composite one has two, for its tick and its list.
    const std::vector<clsMark> &of(const clsExpectedScreen &screen, const clsExpectedField &field, int item) const;
    const std::map<std::string, std::vector<clsMark>> &all() const { return m_marks; }
    /// Whether a field of that screen has been recorded.
    bool knows(const std::string &screen) const;
    int fields() const { return int(m_marks.size()); }

    /// How the file encodes the few characters that are typed here.
    static QByteArray inFile(const QString &text);

private:
    static std::string keyOf(const clsExpectedScreen &screen, const char *control, int item);
    static std::string pathOf(const clsExpectedScreen &screen, const std::string &element, int item);
    static std::string elementOf(const clsExpectedScreen &screen, const clsExpectedField &field);
    void put(const clsExpectedScreen &screen, const char *control, char kind, int item, const std::string &element,
        const QByteArray &content, const QString &shown);

    size_t m_tickedPlace;
    unsigned m_twiceBit;
    std::vector<clsChosen> m_chosen;
    std::map<std::string, std::vector<clsMark>> m_marks;
    int m_count = 0;
};
