#pragma once

#include <functional>

class QUrl;

/// Opens a document or address with the program that the desktop has for it; false where there is none. Where that
/// turns out only after the return, `failed` is run.
bool mdOpenOnDesktop(const QUrl &url, const std::function<void()> &failed);
