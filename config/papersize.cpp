#include "papersize.h"

#include <clocale>
#include <cstdio>
#include <cstring>
#include <langinfo.h>
#include <string>

namespace {

// Countries whose calling code puts them in the Letter zone. The old
// vehicle-registration codes (RA, RB, JA, YV) are still found in some
// locales, and Canada is listed with 2 as the table always had it.
int callingCode(const char *country)
{
    static const struct { const char *code; int calling; } table[] = {
        { "RA", 54 }, { "AR", 54 }, { "BZ", 501 }, { "RB", 591 }, { "BO", 591 },
        { "BR", 55 }, { "CA", 2 }, { "CL", 56 }, { "CO", 57 }, { "CR", 506 },
        { "DM", 1 }, { "EC", 593 }, { "SV", 503 }, { "GT", 502 }, { "HN", 504 },
        { "JA", 1 }, { "JM", 1 }, { "MX", 52 }, { "NI", 505 }, { "PA", 507 },
        { "PY", 595 }, { "PE", 51 }, { "PR", 1 }, { "TT", 1 }, { "UM", 1 },
        { "US", 1 }, { "UY", 598 }, { "VE", 58 }, { "YV", 58 },
    };
    if (strlen(country) != 2)
        return 0;
    for (const auto &row : table)
        if (strcmp(row.code, country) == 0)
            return row.calling;
    return 0;
}

bool isLetterZone(int code)
{
    return code == 1 || code == 2 || code == 5 || (code >= 50 && code <= 59)
        || (code >= 500 && code <= 599);
}

} // namespace

const char *paperSizeForLocale(const char *localeName, int paperWidthMm)
{
    static const char letter[] = "Letter";
    static const char a4[] = "A4";

    char country[3] = "";
    if (localeName && sscanf(localeName, "%*2s_%2s", country) == 1)
        return isLetterZone(callingCode(country)) ? letter : a4;
    // No country in the name (C, POSIX, a three-letter language): the
    // locale's own paper width decides.
    return paperWidthMm == 216 ? letter : a4;
}

const char *defaultPaperSize()
{
    const char *adopted = setlocale(LC_PAPER, "");
    const std::string kept = adopted ? adopted : "C";

    // glibc hands integer items back in the pointer's place.
    union {
        const char *string;
        unsigned int word;
    } width;
    width.string = nl_langinfo(_NL_PAPER_WIDTH);
    setlocale(LC_PAPER, kept.c_str());

    return paperSizeForLocale(kept.c_str(), static_cast<int>(width.word));
}
