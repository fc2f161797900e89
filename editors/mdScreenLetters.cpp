#include "editors/mdScreenLetters.h"

#include "controls/oCustomButton.h"
#include "editors/clsMnemonics.h"
#include "editors/oFieldLabel.h"
#include "editors/oScreenBar.h"
#include "editors/oScreenFrame.h"

#include <algorithm>

namespace {

/// File, Edit, Jump To, Save, Add, Close and Cancel. They have these letters on every screen; if one of them is missing
/// its letter stays unused.
constexpr QLatin1String FixedLetters("FEJSACN");

/// The first "Add" of a screen, and that of each page, because only one page is open, has its fixed letter; any other
/// gets a free letter.
void giveButtons(const std::vector<clsScreenField> &fields, clsMnemonics &letters, bool adds)
{
    for (const clsScreenField &field : fields) {
        auto *button = qobject_cast<oCustomButton *>(field.control);
        if (!button || (button->Caption() == QLatin1String("Add")) != adds)
            continue;
        if (adds && field.page > 0)
            button->setCaption(letters.marked(button->Caption(), u'A'));
        else
            button->setCaption(letters.marked(button->Caption()));
    }
}

/// Whether the first field of a frame is a button or can be reached by a caption: its own or its question's.
bool hasCaption(const oScreenFrame &frame)
{
    if (frame.switcher())
        return false;
    const QWidget *first = frame.fields().empty() ? nullptr : frame.fields().front().control;
    if (!first || qobject_cast<const oCustomButton *>(first))
        return true;
    const auto &labels = frame.labels();
    return std::any_of(labels.begin(), labels.end(), [first](const oFieldLabel *label) {
        return label->buddy() == first && label->place() != oFieldLabel::Place::Answer;
    });
}

/// A caption whose letters are all taken gets a digit.
void giveLabels(const std::vector<oFieldLabel *> &labels, clsMnemonics &letters)
{
    QStringList captions;
    for (const oFieldLabel *label : labels)
        captions << (label->place() == oFieldLabel::Place::Answer ? QString() : label->Caption());
    const QStringList marked = letters.marked(captions);
    for (size_t i = 0; i < labels.size(); ++i) {
        if (labels[i]->place() == oFieldLabel::Place::Answer)
            continue;
        labels[i]->setText(marked[int(i)]);
        if (marked[int(i)] == clsMnemonics::unmarked(captions[int(i)]))
            labels[i]->setDigit(letters.digit());
    }
}

} // namespace

void mdGiveLetters(oScreenBar &bar, const std::vector<clsScreenField> &fields, const std::vector<oFieldLabel *> &labels,
    const std::vector<oScreenFrame *> &frames)
{
    clsMnemonics letters;
    giveButtons(fields, letters, true);
    for (const char letter : FixedLetters)
        letters.reserve(QLatin1Char(letter));
    bar.giveLetters(letters);
    giveButtons(fields, letters, false);
    for (oScreenFrame *frame : frames)
        if (!hasCaption(*frame))
            frame->giveLetter(letters);
    giveLabels(labels, letters);
}
