// The preferences file loader: every value read keeps one of the four types.
#include "Check.h"
#include "UserDefaults.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto contents = UserDefaults::parse(QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size)));
    if (!contents)
        return 0;
    for (auto it = contents->values.begin(); it != contents->values.end(); ++it) {
        const int type = it.value().typeId();
        FUZZ_CHECK(type == QMetaType::Bool || type == QMetaType::LongLong || type == QMetaType::Double
                   || type == QMetaType::QString);
        FUZZ_CHECK(!contents->malformedKeys.contains(it.key()));
    }
    return 0;
}
