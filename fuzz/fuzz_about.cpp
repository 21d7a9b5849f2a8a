// The about file reader, shared by the seeding, the import and the export.
#include "AboutFile.h"
#include "Check.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto result = AboutFile::articles(text);
    if (const auto *error = std::get_if<AboutFile::ParseError>(&result)) {
        FUZZ_CHECK(!error->message.isEmpty());
        return 0;
    }
    for (const AboutFile::Article &article : std::get<QList<AboutFile::Article>>(result)) {
        FUZZ_CHECK(!article.name.contains(u'^') && !article.name.contains(u'\n') && !article.name.contains(u'\r'));
        if (article.text)
            FUZZ_CHECK(!article.text->contains(u'^') && !article.text->contains(u'\r'));
    }
    return 0;
}
