#pragma once

#include <QString>

/// The office program that turns documents into pages: LibreOffice, in the path or in one of its usual places. Empty
/// where there is none.
QString mdOfficeProgram();

/// What the user is told then.
QString mdNoOfficeProgramMessage();

/// Puts another office program in force for as long as this object lives, and how long it may take; an empty one stands
/// for a machine that has none.
class clsOfficeProgramScope {
public:
    clsOfficeProgramScope(const QString &program, int longestMilliseconds);
    ~clsOfficeProgramScope();
    clsOfficeProgramScope(const clsOfficeProgramScope &) = delete;
    clsOfficeProgramScope &operator=(const clsOfficeProgramScope &) = delete;
};

/// How long the office program may take for one document; then it is given up.
int mdOfficeProgramLongestMilliseconds();
