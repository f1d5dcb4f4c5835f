#ifndef QUEUEWIZ_SOFTASSERT_H
#define QUEUEWIZ_SOFTASSERT_H

// A consistency check that reports and lets the caller go on along its safe
// path (Q_ASSERT would abort). The module name and number identify the check
// itself, so they are given as literals, not __FILE__/__LINE__.
// Returns ok so that it can guard a branch.
bool softAssert(bool ok, const char *expression, const char *module, int line);

#define QW_CHECK(cond, module, line) softAssert(static_cast<bool>(cond), #cond, module, line)

#endif
