// Every scheme's validator, with and without IPv6, on any text: no crash,
// and the repaired text is stable under a second validation.
#include "urivalidator.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const int scheme = data[0] % 7;
    const bool ipv6 = data[0] & 0x80;
    QString text = QString::fromUtf8(reinterpret_cast<const char *>(data + 1), static_cast<int>(size - 1));
    UriValidator validator(scheme, ipv6);
    int pos = static_cast<int>(text.size());
    const QValidator::State first = validator.validate(text, pos);
    if (pos < 0 || pos > text.size() + 64)
        abort();
    QString again = text;
    int pos2 = static_cast<int>(again.size());
    if (validator.validate(again, pos2) != first || again != text)
        abort();
    return 0;
}
