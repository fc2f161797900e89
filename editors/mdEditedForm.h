#pragma once

class clsZR3Form;

/// The form whose groups, fee earners and counsel the screens show and change: the open claim, or the firm's form while
/// "Firm and Team" is open.
clsZR3Form &mdEditedForm();

/// Replaces the open claim by the firm's form while this object lives.
class clsEditedFormScope {
public:
    explicit clsEditedFormScope(clsZR3Form &form);
    ~clsEditedFormScope();
    clsEditedFormScope(const clsEditedFormScope &) = delete;
    clsEditedFormScope &operator=(const clsEditedFormScope &) = delete;

private:
    clsZR3Form *m_before;
};
