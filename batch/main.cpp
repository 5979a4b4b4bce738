// SPDX-License-Identifier: MIT
#include "batch/Program.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace
{

// Otherwise, the next file that is opened would get the number of a standard stream that is closed, and the messages.
void openClosedStreams()
{
    int descriptor = 0;
    do {
        descriptor = open("/dev/null", O_RDWR);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    close(descriptor);
}

} // namespace

int main(int argc, char **argv)
{
    openClosedStreams();
    const QCoreApplication application(argc, argv);
    QFile standardInput;
    standardInput.open(stdin, QIODevice::ReadOnly);
    return grisal::batch::run(QCoreApplication::arguments(), standardInput,
                              grisal::batch::invalidArguments(argc, argv));
}
