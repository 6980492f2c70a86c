#pragma once

#include <QString>
#include <QTest>

/// All test classes of a folder are one program, which builds and links faster than one program per class.
/// `program NAME [options of Qt Test]` runs one class, as ctest does; `program` runs all of them.
class TestProgram
{
public:
    using Run = int (*)(int argc, char **argv);

    /// `file` is the source file of the class, whose name is used.
    TestProgram(const char *file, Run run);

    static int run(int argc, char **argv);
};

/// Used instead of the QTEST_MAIN macros.
#define PELKO_TEST(Class)                                                                                    \
    static const TestProgram run##Class(__FILE__, [](int argc, char **argv) {                                \
        Class test;                                                                                          \
        return QTest::qExec(&test, argc, argv);                                                              \
    });
