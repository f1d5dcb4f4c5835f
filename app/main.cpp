#include "startup.h"

int main(int argc, char **argv)
{
    return queuewizMain(argc, argv);
}
