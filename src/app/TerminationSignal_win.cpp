#include "TerminationSignal.h"

// Windows closes a program's windows itself when the session ends, which takes the same way as the user's
// close.
class TerminationSignal::Source {};

TerminationSignal::TerminationSignal(QObject *parent)
    : QObject(parent)
{
}

TerminationSignal::~TerminationSignal() = default;
