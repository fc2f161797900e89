#include "editors/mdTypedTexts.h"

#include "base/mdNumberText.h"
#include "editors/frmSection.h"
#include "editors/mdFieldTexts.h"
#include "editors/mdScreenControls.h"

#include <QApplication>

#include <algorithm>

namespace {

int orderOf(const frmSection &screen)
{
    const clsXMLField *field = screen.Record() ? screen.Record()->field(u"OrderID") : nullptr;
    return field ? LongFromText(field->readText()) : 0;
}

clsTypedTexts typedIn(const frmSection &screen)
{
    const clsScreen &table = screen.Screen();
    clsTypedTexts texts {screen.objectName(), QString::fromUtf8(table.section ? table.section : table.header), 0, {}};
    const QStringList now = mdFieldTexts(screen.Fields());
    const QStringList &before = screen.LoadedTexts();
    for (qsizetype i = 0; i < qMin(now.size(), before.size()); ++i)
        if (now[i] != before[i])
            texts.fields.emplace_back(mdMemberOf(*screen.Fields()[size_t(i)].row), now[i]);
    if (!texts.fields.empty())
        texts.orderID = orderOf(screen);
    return texts;
}

int depthOf(const QWidget &window)
{
    int depth = 0;
    for (const QWidget *widget = window.parentWidget(); widget; widget = widget->parentWidget())
        ++depth;
    return depth;
}

} // namespace

std::vector<clsTypedTexts> mdTypedTexts()
{
    std::vector<const frmSection *> screens;
    for (const QWidget *window : QApplication::topLevelWidgets())
        if (const auto *screen = qobject_cast<const frmSection *>(window); screen && screen->isVisible())
            screens.push_back(screen);
    std::sort(screens.begin(), screens.end(),
        [](const frmSection *a, const frmSection *b) { return depthOf(*a) < depthOf(*b); });
    std::vector<clsTypedTexts> typed;
    for (const frmSection *screen : screens)
        if (clsTypedTexts texts = typedIn(*screen); !texts.fields.empty())
            typed.push_back(std::move(texts));
    return typed;
}
