#ifndef QUEUEWIZ_LISTINGRECORDS_H
#define QUEUEWIZ_LISTINGRECORDS_H

#include "cupsdriver.h"

#include <cups/ipp.h>

// A record that a listing keeps: a queue (or job) that has a name, a
// driver that has a file.
template <class Record>
bool isListed(const Record &record)
{
    return !record.Name().isEmpty();
}

inline bool isListed(const CUPSDriver &driver)
{
    return !driver.DriverFile().isEmpty();
}

// The records of a listing's answer, one attribute group each, separated by
// an attribute without a name; take() gets every record that isListed().
template <class Record, class Take>
void forEachRecord(ipp_t *response, Take take)
{
    Record record;
    const auto finish = [&] {
        if (isListed(record))
            take(record);
        record = Record();
    };
    for (ipp_attribute_t *attr = ippFirstAttribute(response); attr; attr = ippNextAttribute(response)) {
        record.fillFrom(attr);
        if (!ippGetName(attr))
            finish();
    }
    finish();
}

#endif
