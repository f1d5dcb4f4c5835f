// Stands in for the scheduler's usb and parallel backends. Run for a job it
// records, next to its own file, how it was called (<self>.args: argv[0],
// DEVICE_URI, then the arguments, one a line) and the job's bytes
// (<self>.data, renamed into place once complete). Lists no devices.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <unistd.h>

int main(int argc, char *argv[])
{
    if (argc == 1)
        return 0;
    char self[4096];
    const ssize_t n = readlink("/proc/self/exe", self, sizeof self - 1);
    if (n <= 0)
        return 1;
    self[n] = '\0';
    const std::string base(self);

    {
        std::ofstream args(base + ".args");
        const char *uri = getenv("DEVICE_URI");
        args << argv[0] << '\n' << (uri ? uri : "") << '\n';
        for (int i = 1; i < argc; ++i)
            args << argv[i] << '\n';
    }
    std::ifstream file;
    if (argc > 6)
        file.open(argv[6], std::ios::binary);
    std::istream &in = argc > 6 ? static_cast<std::istream &>(file) : std::cin;
    {
        std::ofstream data(base + ".part", std::ios::binary);
        data << in.rdbuf();
    }
    return std::rename((base + ".part").c_str(), (base + ".data").c_str()) == 0 ? 0 : 1;
}
