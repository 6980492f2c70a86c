#include "support/TestProgram.h"

#include <QFileInfo>

#include <cstdio>
#include <map>

namespace
{
std::map<QString, TestProgram::Run> &classes()
{
    static std::map<QString, TestProgram::Run> classes;
    return classes;
}
} // namespace

TestProgram::TestProgram(const char *file, Run run)
{
    classes().emplace(QFileInfo(QString::fromUtf8(file)).baseName(), run);
}

int TestProgram::run(int argc, char **argv)
{
    if (argc < 2 || argv[1][0] == '-') {
        int failures = 0;
        for (const auto &[name, run] : classes())
            failures += run(argc, argv);
        return failures;
    }
    const auto found = classes().find(QString::fromUtf8(argv[1]));
    if (found == classes().end()) {
        std::fprintf(stderr, "There is no test class %s.\n", argv[1]);
        return 1;
    }
    argv[1] = argv[0];
    return found->second(argc - 1, argv + 1);
}
