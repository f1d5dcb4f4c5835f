#ifndef QUEUEWIZ_FUZZ_FUZZTARGET_H
#define QUEUEWIZ_FUZZ_FUZZTARGET_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

// libFuzzer's entry point: data and size are the input.
#define QW_FUZZ_TARGET extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)

// A broken property aborts, which libFuzzer reports with the input.
inline void require(bool holds)
{
    if (!holds)
        abort();
}

// A string field of N bytes ends within them.
template <size_t N>
void requireTerminated(const char (&field)[N])
{
    require(memchr(field, '\0', N) != nullptr);
}

#endif
