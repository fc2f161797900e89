#pragma once

#include <functional>

class QUrl;

/// Opens a document or address with the desktop's program for it; false if there is none. If that turns out only after
/// the return, runs `failed`.
bool mdOpenOnDesktop(const QUrl &url, const std::function<void()> &failed);
