#pragma once

#include "tests/window/mdEveryFieldTables.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <string>
#include <vector>

/// A value that a field was given, and where it belongs.
struct clsMark {
    std::string where; ///< for messages: screen, control and item
    std::string path; ///< of the element in the claim
    QByteArray content; ///< of the element, as the file has it
    QString shown; ///< by the control
    char kind;
};

/// Gives every field of the claim a value of its own and knows it afterwards: what the user types, what the file then
/// holds and what the control shows are put together here from the tables, without a look at the program.
class clsFieldMarks {
public:
    /// Of several ticks that exclude each other, the one at a place from 0 is clicked last; where there are fewer, the
    /// last of them. All others are told apart by the places of their fields in the table: those in which a bit is set
    /// are clicked twice.
    clsFieldMarks(size_t tickedPlace, unsigned twiceBit, std::vector<clsChosen> chosen)
        : m_tickedPlace(tickedPlace)
        , m_twiceBit(twiceBit)
        , m_chosen(std::move(chosen))
    { }

    /// What the user types into a text, a date, an amount, a number or a time, which it marks.
    QString typed(const clsExpectedScreen &screen, const clsExpectedField &field, int item);
    /// How often a tick is clicked.
    int clicksOf(const clsExpectedScreen &screen, const clsExpectedField &field) const;
    /// Marks a tick that is clicked so often, and together with those that exclude it.
    void clicked(const clsExpectedScreen &screen, const clsExpectedField &field, int item);
    /// Marks what is chosen in a list, and the tick before it where there is one.
    void chosen(const clsExpectedScreen &screen, const clsChosen &row);

    /// The one of several that exclude each other that stays ticked.
    const char *tickedOf(const clsExclusiveTicks &group) const;
    /// What is to be chosen, where the field is a list or the like.
    const clsChosen *choiceOf(const clsExpectedScreen &screen, const clsExpectedField &field, int item) const;
    /// The ticks that exclude each other with this one; nothing for one that stands for itself.
    static const clsExclusiveTicks *exclusivesOf(const clsExpectedScreen &screen, const clsExpectedField &field);

    /// The marks of a field; a composite one has two, for its tick and its list.
    const std::vector<clsMark> &of(const clsExpectedScreen &screen, const clsExpectedField &field, int item) const;
    const std::map<std::string, std::vector<clsMark>> &all() const { return m_marks; }
    /// Whether a field of that screen has been marked.
    bool knows(const std::string &screen) const;
    int fields() const { return int(m_marks.size()); }

    /// How the file writes the few characters that are typed here.
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
