#include "host/Complaint.h"

#include <cstdio>

namespace host {

void complain(const QString &line)
{
    std::fprintf(stderr, "mouse gestures: %s\n", qPrintable(line.simplified()));
}

} // namespace host
