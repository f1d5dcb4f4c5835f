#include "ppdfileptr.h"

void PpdFileCloser::operator()(ppd_file_t *ppd) const
{
    ppdClose(ppd);
}
