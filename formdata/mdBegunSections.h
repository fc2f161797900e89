#pragma once

#include <QSet>
#include <QString>

class clsZR3Form;

/// The sections with content, by the texts of their tabs. Values that a screen stores without any input, such as False,
/// 0.00 and the no-date value, don't count as content. Form Setup has content if it differs from that of a new claim.
QSet<QString> mdBegunSections(const clsZR3Form &form);
