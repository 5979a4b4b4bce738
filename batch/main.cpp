// SPDX-License-Identifier: MIT
#include "batch/Program.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QFile standardInput;
    standardInput.open(stdin, QIODevice::ReadOnly);
    return grisal::batch::run(QCoreApplication::arguments(), standardInput);
}
