#include "support/EnglishCatalogue.h"
#include "support/TestProgram.h"

#ifdef QT_GUI_LIB
#    include <QGuiApplication>
using Application = QGuiApplication;
#else
#    include <QCoreApplication>
using Application = QCoreApplication;
#endif

int main(int argc, char **argv)
{
    const Application application(argc, argv);
    const EnglishCatalogue english;
    return TestProgram::run(argc, argv);
}
