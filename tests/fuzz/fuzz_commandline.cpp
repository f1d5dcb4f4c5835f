// The compact option string and a command line parsed with it: the first
// NUL-separated word is the option string, the rest the arguments.
#include "fuzztarget.h"
#include "commandlineoptions.h"

#include <string>
#include <vector>

QW_FUZZ_TARGET
{
    std::vector<std::string> words(1);
    for (size_t i = 0; i < size && words.size() < 32; ++i) {
        if (data[i] == '\0')
            words.emplace_back();
        else
            words.back() += static_cast<char>(data[i]);
    }
    std::vector<char> names;
    const std::vector<option> table = CommandLineOptions::longOptionTable(words[0].c_str(), names);
    require(!table.empty() && table.back().name == nullptr);

    std::vector<std::string> args = { "queuewiz" };
    args.insert(args.end(), words.begin() + 1, words.end());
    std::vector<char *> argv;
    for (std::string &a : args)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    opterr = 0; // getopt's complaints are not what is tested here
    CommandLineOptions options(static_cast<int>(args.size()), argv.data(), "h", words[0].c_str());
    (void)options.toString();
    return 0;
}
