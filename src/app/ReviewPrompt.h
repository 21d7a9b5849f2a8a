#pragma once

#include <QString>
#include <optional>

// Asks for a rating after every third page opened, at most once per application version.
// The page reader runs it each time it loads a page.
namespace ReviewPrompt {
// currentVersion: the bundle's version, absent when it has none.
void run(const std::optional<QString> &currentVersion);
}
