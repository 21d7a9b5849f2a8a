#pragma once

#include "AboutFile.h"
#include "Entities.h"

#include <functional>

// The about file the export writes: the marker line, then "name^text" for every named article
// in the order given, its line breaks as "@#@". An article without a name is left out; one
// with a name and no text cannot be written.
namespace AboutFile {

struct WriteError {
    QString message;
};

// `visited` hears of every article before it is written (or left out).
std::variant<QString, WriteError> write(const QList<About *> &articles,
                                        const std::function<void(const About &)> &visited = {});

}
