#include "editors/clsItemChoice.h"

#include "base/clsRunTimeError.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "controls/oCheckBox.h"
#include "editors/mdComboboxSelectByItemData.h"
#include "editors/oScreenList.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

namespace {

enum class clsMember { Flag, Identity };

/// A table that doesn't name two properties of its record is a programming error, which appears when the screen is
/// opened.
clsXMLField &fieldOf(const clsScreenRow &row, const clsChoiceSource &source, clsXMLRecord &record, clsMember member)
{
    const QString both = QString::fromUtf8(row.member ? row.member : source.members);
    clsXMLField *field = record.field(both.section(u' ', int(member), int(member)));
    if (!field)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *field;
}

} // namespace

clsItemChoice::clsItemChoice(QFrame &box, const clsChoiceSource &source)
    : QObject(&box)
    , m_source(source)
    , m_tick(new oCheckBox(&box))
    , m_list(new oScreenList(&box))
    , m_row(new QHBoxLayout(&box))
{
    m_tick->setObjectName(QString::fromUtf8(source.tick));
    m_tick->setCaption(QString::fromUtf8(source.tickCaption));
    m_list->setObjectName(QString::fromUtf8(source.list));
    m_list->setAccessibleName(QString::fromUtf8(source.listCaption));
    // Screen readers announce a list by its choice and use a label for its caption; this list has none.
    m_list->setAccessibleDescription(m_list->accessibleName());
    m_list->setEnabled(false);

    // Room for the focus ring of the tick. Layouts ignore this room, so that the box's visible edge lines up with its
    // neighbours'; setting the frame style makes the style apply this.
    m_row->setContentsMargins(Theme::RingRoom, Theme::RingRoom, Theme::RingRoom, Theme::RingRoom);
    m_row->setSpacing(Theme::Space8);
    m_row->addWidget(m_tick);
    m_row->addSpacing(Theme::Space12 - Theme::Space8);
    m_row->addWidget(m_list);
    box.setProperty("ringRoom", true);
    box.setFrameStyle(QFrame::NoFrame);

    // Before the proxy, which would otherwise receive the policy. The box itself is not a tab stop.
    box.setFocusPolicy(Qt::ClickFocus);
    box.setFocusProxy(m_tick);
    box.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(m_tick, &oCheckBox::Click, this, &clsItemChoice::ticked);
    connect(m_list, &QComboBox::currentIndexChanged, this, [this] {
        showWhole();
        emit Change();
    });
}

bool clsItemChoice::Ticked() const
{
    return m_tick->Checked();
}

void clsItemChoice::setTicked(bool ticked)
{
    m_tick->setChecked(ticked);
}

void clsItemChoice::ticked(bool isTicked)
{
    m_list->setEnabled(isTicked);
    // On both changes: even an unticked list shows what ticking would choose.
    if (m_list->currentIndex() < 0 && m_list->count() > 0)
        m_list->setCurrentIndex(0);
    emit Click(isTicked);
}

/// Beside buttons the list may be too narrow for a name.
void clsItemChoice::showWhole()
{
    m_list->setToolTip(mdPlainToolTip(m_list->currentText()));
}

QString clsItemChoice::UniqueID() const
{
    return Ticked() ? ChosenID() : QString();
}

void clsItemChoice::setUniqueID(const QString &uniqueID)
{
    if (uniqueID.isEmpty())
        return;
    if (const int index = m_source.from.indexOf(uniqueID))
        mdComboboxSelectByItemData(*m_list, index);
}

int clsItemChoice::SelectedIndex() const
{
    return m_list->currentData().toInt();
}

void clsItemChoice::fill()
{
    const int selected = SelectedIndex();
    const std::vector<clsChoiceItem> items = m_source.from.items();
    {
        const QSignalBlocker quiet(m_list);
        m_list->clear();
        for (const clsChoiceItem &item : items)
            m_list->addItem(item.name, item.index);
        // A list selects its first entry automatically; this one needs a choice by the user or a stored value.
        m_list->setCurrentIndex(-1);
        mdComboboxSelectByItemData(*m_list, selected);
    }
    m_list->updateGeometry();
    showWhole();
    m_tick->setEnabled(!items.empty());
    m_tick->setToolTip(items.empty() ? QString::fromUtf8(m_source.whyNoTick) : QString());
    if (SelectedIndex() != selected)
        emit Change();
}

QString clsItemChoice::ChosenID() const
{
    const int index = SelectedIndex();
    return index ? m_source.from.uniqueIDOf(index) : QString();
}

void clsItemChoice::fillFor(const QString &uniqueID)
{
    m_list->setCurrentIndex(-1);
    fill();
    setUniqueID(uniqueID);
}

void clsItemChoice::load(const clsScreenRow &row, clsXMLRecord &record)
{
    const clsXMLField &flag = fieldOf(row, m_source, record, clsMember::Flag);
    try {
        setTicked(flag.readBoolean());
    } catch (const clsRunTimeError &error) {
        if (error.number() == clsRunTimeError::ObjectNotSet)
            throw;
        m_tick->setToolTip(error.cause());
    }
    // Lets the user remove a tick that a file sets although the claim has no such item.
    if (Ticked())
        m_tick->setEnabled(true);
    setUniqueID(fieldOf(row, m_source, record, clsMember::Identity).readText());
}

void clsItemChoice::store(const clsScreenRow &row, clsXMLRecord &record) const
{
    fieldOf(row, m_source, record, clsMember::Flag).writeBoolean(Ticked());
    fieldOf(row, m_source, record, clsMember::Identity).writeText(UniqueID());
}
