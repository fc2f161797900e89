#pragma once

class clsZR3Form;

/// The form whose groups, fee earners and counsel the screens show and change: the open claim, or the firm's while
/// "Firm and Team" is open.
clsZR3Form &mdEditedForm();

/// Puts the firm's form in the place of the open claim for as long as this object lives.
class clsEditedFormScope {
public:
    explicit clsEditedFormScope(clsZR3Form &form);
    ~clsEditedFormScope();
    clsEditedFormScope(const clsEditedFormScope &) = delete;
    clsEditedFormScope &operator=(const clsEditedFormScope &) = delete;

private:
    clsZR3Form *m_before;
};
