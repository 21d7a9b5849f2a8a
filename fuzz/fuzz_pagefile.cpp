// The page file reader: Windows-1250 bytes to lines, pieces and stored values.
#include "Check.h"
#include "PageFile.h"

#include <cstdint>

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto text = PageFile::decodeWindows1250(QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size)));
    if (!text)
        return 0;
    for (const QString &line : PageFile::lines(*text)) {
        FUZZ_CHECK(!line.isEmpty() && line != PageFile::marker);
        FUZZ_CHECK(!line.contains(u',') && !line.contains(u'\'') && !line.contains(u'\r') && !line.contains(u'\n'));
        const QStringList pieces = PageFile::pieces(line);
        const auto result = PageFile::assignments(pieces, PageFile::columns);
        const auto *assignments = std::get_if<QList<PageFile::Assignment>>(&result);
        if (!assignments) {
            FUZZ_CHECK(!std::get<PageFile::ParseError>(result).message.isEmpty());
            continue;
        }
        FUZZ_CHECK(assignments->size() == pieces.size());
        for (qsizetype i = 0; i < assignments->size(); ++i) {
            const PageFile::Assignment &assignment = assignments->at(i);
            FUZZ_CHECK(assignment.column == PageFile::columns[i]);
            if (assignment.value.typeId() == QMetaType::QString)
                FUZZ_CHECK(!assignment.value.toString().contains(u'"'));
        }
    }
    return 0;
}
