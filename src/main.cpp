#include "PelkoApp.h"

#include <QGuiApplication>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    PelkoApp app;
    return application.exec();
}
