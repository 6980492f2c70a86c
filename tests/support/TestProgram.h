#pragma once

#include <QString>
#include <QTest>

/// The test classes of one folder make one program: it builds and links once instead of once for every class.
/// `program NAME [options of Qt Test]` runs one class, in a process of its own as ctest does it; `program`
/// alone runs one after the other.
class TestProgram
{
public:
    using Run = int (*)(int argc, char **argv);

    /// `file` is the one that the class stands in; the class is called by its name.
    TestProgram(const char *file, Run run);

    static int run(int argc, char **argv);
};

/// In place of one of the QTEST_MAIN macros.
#define PELKO_TEST(Class)                                                                                    \
    static const TestProgram run##Class(__FILE__, [](int argc, char **argv) {                                \
        Class test;                                                                                          \
        return QTest::qExec(&test, argc, argv);                                                              \
    });
