// What a local process may write to a running wizard in a Wayland session:
// a frame is taken only whole, and one that is taken says the same again
// when it is framed anew.
#include "fuzztarget.h"
#include "sessionchannel.h"

QW_FUZZ_TARGET
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QString message;
    QByteArray token;
    if (SessionChannel::parseFrame(bytes, &message, &token))
        require(SessionChannel::frame(message, token) == bytes);
    return 0;
}
