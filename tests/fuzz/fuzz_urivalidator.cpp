// Every scheme's validator, with and without IPv6, on any text: no crash,
// and the repaired text is stable under a second validation.
#include "fuzztarget.h"
#include "urivalidator.h"

QW_FUZZ_TARGET
{
    if (size < 1)
        return 0;
    const int scheme = data[0] % 7;
    const bool ipv6 = data[0] & 0x80;
    QString text = QString::fromUtf8(reinterpret_cast<const char *>(data + 1), static_cast<int>(size - 1));
    UriValidator validator(scheme, ipv6);
    int pos = static_cast<int>(text.size());
    const QValidator::State first = validator.validate(text, pos);
    require(pos >= 0 && pos <= text.size() + 64);
    QString again = text;
    int pos2 = static_cast<int>(again.size());
    require(validator.validate(again, pos2) == first && again == text);
    return 0;
}
