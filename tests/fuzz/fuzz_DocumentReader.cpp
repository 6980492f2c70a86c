// The program's reader and the independent one return the same documents or both reject the file; documents
// that were read can be written and read again.

#include "IndependentReader.h"
#include "Store/DocumentReader.h"
#include "support/DataFileText.h"

#include <cstdint>

namespace
{
void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto *text = reinterpret_cast<const char *>(data);
    const auto read = readDocuments(QByteArray(text, qsizetype(size)));
    require(read == readIndependently({text, size}));
    if (read) {
        const QByteArray written = dataFileText(*read);
        require(readDocuments(written) == read);
        require(readIndependently({written.constData(), std::size_t(written.size())}) == read);
    }
    return 0;
}
