#include "controls/mdTheme.h"
#include "controls/oBoxNote.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "tests/editors/clsScreenWalk.h"

#include <set>

// The space for notes on every screen: a note at any amount or date covers nothing and is not cut off.

namespace {

const oBoxNote::clsNote NoteOfDate {
    QStringLiteral("Typed 1/2/1850, read as 01/02/50: a year keeps its last two figures"),
    Sign::Note,
    {},
    QStringLiteral("Read as 01/02/50: a year keeps its last two figures"),
};
const oBoxNote::clsNote NoteOfAmount {
    QStringLiteral("Typed 1,234,567.89, read as 1.00: amounts take no comma"),
    Sign::Note,
    QStringLiteral("1234567.89"),
    QStringLiteral("Read as 1.00: amounts take no comma"),
};

QRect placeOf(const QWidget &part, const QWidget &page)
{
    // A button has room for its focus ring around it.
    const int ring = qobject_cast<const QPushButton *>(&part) ? Theme::RingRoom : 0;
    return QRect(part.mapTo(&page, QPoint()), part.size()).adjusted(ring, ring, -ring, -ring);
}

} // namespace

TEST_P(EveryScreen, HasRoomForANoteAtEachAmountAndDate)
{
    onEachPage([&] {
        for (const clsScreenField &field : openFields()) {
            const bool date = qobject_cast<oDateBox *>(field.control);
            if (!date && !qobject_cast<oDecimalBox *>(field.control))
                continue;
            field.control->setEnabled(true);
            oBoxNote::Show(*field.control, date ? NoteOfDate : NoteOfAmount, [](const QString &) {});
            const oBoxNote *note = oBoxNote::of(*field.control);
            ASSERT_TRUE(note) << nameOf(field);
            const QRect place = placeOf(*note, content());
            EXPECT_TRUE(note->isWhole()) << nameOf(field);
            for (const QWidget *part : content().findChildren<QWidget *>()) {
                if (!part->isVisible() || part == note || note->isAncestorOf(part) || part->isAncestorOf(note))
                    continue;
                EXPECT_FALSE(placeOf(*part, content()).intersects(place))
                    << nameOf(field) << " and " << part->metaObject()->className() << " "
                    << part->objectName().toStdString();
            }
            oBoxNote::Clear(*field.control);
        }
    });
}
