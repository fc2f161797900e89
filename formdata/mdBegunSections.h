#pragma once

#include <QSet>
#include <QString>

class clsZR3Form;

/// The sections that hold something, by the texts of their tabs. Values that a screen stores where the user has entered
/// nothing count as nothing, such as False, 0.00 and the date that stands for none. Form Setup holds something as soon
/// as it differs from that of a new claim.
QSet<QString> mdBegunSections(const clsZR3Form &form);
