#pragma once

#include <QString>

/// The office program that converts documents: LibreOffice, in the path or one of its usual places. Empty if there is
/// none.
QString mdOfficeProgram();

/// The message in that case.
QString mdNoOfficeProgramMessage();

/// Replaces the office program and its time limit while this object lives; an empty path stands for a machine without
/// one.
class clsOfficeProgramScope {
public:
    clsOfficeProgramScope(const QString &program, int longestMilliseconds);
    ~clsOfficeProgramScope();
    clsOfficeProgramScope(const clsOfficeProgramScope &) = delete;
    clsOfficeProgramScope &operator=(const clsOfficeProgramScope &) = delete;
};

/// The time limit for one document; then the conversion is abandoned.
int mdOfficeProgramLongestMilliseconds();
