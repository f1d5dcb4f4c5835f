#ifndef QUEUEWIZ_REQUESTS_H
#define QUEUEWIZ_REQUESTS_H

// Every request class of namespace Requests.
#include "requests/printfile.h"
#include "requests/canceljob.h"
#include "requests/getjobs.h"
#include "requests/getjobattributes.h"
#include "requests/getprinterattributes.h"
#include "requests/getdefaultprinter.h"
#include "requests/getprinters.h"
#include "requests/addprinter.h"
#include "requests/deleteprinter.h"
#include "requests/getclasses.h"
#include "requests/addclass.h"
#include "requests/deleteclass.h"
#include "requests/setdefaultprinter.h"
#include "requests/getppds.h"

#endif
