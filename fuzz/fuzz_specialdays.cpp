// The special-day file reader.
#include "Check.h"
#include "SpecialDayFile.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto result = SpecialDayFile::records(text);
    if (const auto *error = std::get_if<SpecialDayFile::ParseError>(&result)) {
        FUZZ_CHECK(!error->message.isEmpty());
        return 0;
    }
    for (const SpecialDayFile::Record &record : std::get<QList<SpecialDayFile::Record>>(result)) {
        FUZZ_CHECK(record.fields.size() >= 1 && record.fields.size() <= 3);
        for (const QString &field : record.fields)
            FUZZ_CHECK(!field.contains(u'^') && !field.contains(u'\r'));
    }
    return 0;
}
