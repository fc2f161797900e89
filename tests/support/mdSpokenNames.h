#pragma once

#include <QAccessible>
#include <QComboBox>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>

// The accessible names of a window's controls.

inline bool saysSomething(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

/// The accessible name of a control. A list is named by its choice, and its caption is its label or description.
inline QString spokenName(QWidget &control)
{
    const QAccessibleInterface &spoken = *QAccessible::queryAccessibleInterface(&control);
    if (!qobject_cast<const QComboBox *>(&control))
        return spoken.text(QAccessible::Name);
    const auto labels = spoken.relations(QAccessible::Label);
    if (labels.isEmpty())
        return spoken.text(QAccessible::Description);
    QString caption = labels.first().first->text(QAccessible::Name);
    return caption.remove(u':').remove(u'*');
}

/// Whether the name is meaningful, if necessary with the question that is read out with an answer.
inline bool hasSensibleName(QWidget &control)
{
    const QString name = spokenName(control);
    const QString more = QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Description);
    return !name.isEmpty() && name == name.trimmed() && !name.endsWith(u':') && !name.contains(u'*')
        && !name.contains(QLatin1String("&&")) && (saysSomething(name) || saysSomething(more));
}

/// Checks everything visible in a window that can have the focus; returns how many there are.
inline int expectSensibleNames(const QWidget &window)
{
    int asked = 0;
    for (QWidget *part : window.findChildren<QWidget *>()) {
        // In a control of several parts, the parts have the names.
        if (!part->isVisible() || part->focusPolicy() == Qt::NoFocus || part->focusProxy())
            continue;
        EXPECT_TRUE(hasSensibleName(*part))
            << part->metaObject()->className() << ' ' << part->objectName().toStdString() << " is called \""
            << spokenName(*part).toStdString() << '"';
        ++asked;
    }
    return asked;
}
