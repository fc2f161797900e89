#include "tests/window/clsFieldMarks.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace {

bool same(const char *one, const char *other)
{
    return std::string_view(one) == other;
}

const QString Ticked = QStringLiteral("True");
const QString Unticked = QStringLiteral("False");

} // namespace

QString clsFieldMarks::typed(const clsExpectedScreen &screen, const clsExpectedField &field, int item)
{
    const int n = ++m_count;
    QString typed, shown;
    switch (field.kind) {
    case 'd': {
        // A day and a month of one digit, which the box pads.
        const int day = 1 + n % 9, month = 1 + n / 9 % 9, year = 10 + n / 81;
        typed = QStringLiteral("%1.%2.%3").arg(day).arg(month).arg(year);
        shown = QStringLiteral("0%1/0%2/%3").arg(day).arg(month).arg(year);
        break;
    }
    case 'm':
        typed = QStringLiteral("%1.5").arg(1000 + n);
        shown = typed + u'0';
        break;
    case 'i': typed = shown = QString::number(3000 + n); break;
    case 'h':
        typed = QStringLiteral("7:37");
        shown = QStringLiteral("07:37");
        break;
    default:
        typed = QStringLiteral("Mark ") + QLatin1String(screen.name) + u' ' + QLatin1String(field.control);
        if (item > 0)
            typed += QStringLiteral(" %1").arg(item);
        shown = typed;
    }
    put(screen, field.control, field.kind, item, elementOf(screen, field), inFile(shown), shown);
    return typed;
}

int clsFieldMarks::clicksOf(const clsExpectedScreen &screen, const clsExpectedField &field) const
{
    if (exclusivesOf(screen, field))
        return 1;
    for (const char *control : TicksOfOthers)
        if (same(field.control, control))
            return 1;
    unsigned place = 0;
    while (!same(screen.fields[place].control, field.control))
        ++place;
    return (place >> m_twiceBit & 1) != 0 ? 2 : 1;
}

void clsFieldMarks::clicked(const clsExpectedScreen &screen, const clsExpectedField &field, int item)
{
    bool ticked = clicksOf(screen, field) == 1;
    if (const clsExclusiveTicks *group = exclusivesOf(screen, field)) {
        ticked = same(field.control, tickedOf(*group));
    } else if (same(screen.name, "frmFormSetup")) {
        for (const char *control : TickedInANewClaim)
            if (same(field.control, control))
                ticked = !ticked;
    }
    const QString shown = ticked ? Ticked : Unticked;
    put(screen, field.control, 'x', item, elementOf(screen, field), shown.toLatin1(), shown);
}

void clsFieldMarks::chosen(const clsExpectedScreen &screen, const clsChosen &row)
{
    put(screen, row.control, 'l', row.item, row.element, row.content, QString::fromUtf8(row.shown));
    if (row.flag)
        put(screen, row.control, 'x', row.item, row.flag, "True", Ticked);
}

const char *clsFieldMarks::tickedOf(const clsExclusiveTicks &group) const
{
    return group.controls[std::min(m_tickedPlace, group.controls.size() - 1)];
}

const clsChosen *clsFieldMarks::choiceOf(const clsExpectedScreen &screen, const clsExpectedField &field, int item) const
{
    for (const auto *rows : {&m_chosen, &ChosenOnBoth})
        for (const clsChosen &row : *rows)
            if (same(row.screen, screen.name) && same(row.control, field.control) && row.item == item)
                return &row;
    return nullptr;
}

const clsExclusiveTicks *clsFieldMarks::exclusivesOf(const clsExpectedScreen &screen, const clsExpectedField &field)
{
    for (const clsExclusiveTicks &group : ExclusiveTicks)
        if (same(group.screen, screen.name)
            && std::ranges::any_of(group.controls, [&](const char *control) { return same(control, field.control); }))
            return &group;
    return nullptr;
}

const std::vector<clsMark> &clsFieldMarks::of(
    const clsExpectedScreen &screen, const clsExpectedField &field, int item) const
{
    static const std::vector<clsMark> none;
    const auto found = m_marks.find(keyOf(screen, field.control, item));
    return found == m_marks.end() ? none : found->second;
}

bool clsFieldMarks::knows(const std::string &screen) const
{
    return std::ranges::any_of(m_marks, [&](const auto &mark) { return mark.first.starts_with(screen + ' '); });
}

QByteArray clsFieldMarks::inFile(const QString &text)
{
    QByteArray content = text.toLatin1();
    content.replace(' ', '+').replace('.', "%2E").replace('/', "%2F").replace(':', "%3A");
    return content;
}

std::string clsFieldMarks::keyOf(const clsExpectedScreen &screen, const char *control, int item)
{
    return std::string(screen.name) + ' ' + control + (item > 0 ? ' ' + std::to_string(item) : std::string());
}

std::string clsFieldMarks::pathOf(const clsExpectedScreen &screen, const std::string &element, int item)
{
    if (item == 0)
        return *screen.element ? screen.element + ('/' + element) : element;
    for (const clsItemsOfScreen &list : ItemsOfScreens)
        if (same(list.editor, screen.name))
            return list.path + ('[' + std::to_string(item) + "]/" + element);
    throw std::runtime_error(std::string("no list is edited by ") + screen.name);
}

std::string clsFieldMarks::elementOf(const clsExpectedScreen &screen, const clsExpectedField &field)
{
    for (const clsOwnElement &row : OwnElements)
        if (same(row.screen, screen.name) && same(row.control, field.control))
            return row.element;
    if (field.element)
        return field.element;
    return QString::fromUtf8(field.control).mid(3).toLower().toStdString();
}

void clsFieldMarks::put(const clsExpectedScreen &screen, const char *control, char kind, int item,
    const std::string &element, const QByteArray &content, const QString &shown)
{
    const std::string key = keyOf(screen, control, item);
    m_marks[key].push_back({key, pathOf(screen, element, item), content, shown, kind});
}
