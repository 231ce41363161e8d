#include "ParentWatch.h"

class ParentWatch::Platform final {};

ParentWatch::ParentWatch(QObject *parent)
    : QObject(parent)
{
}

ParentWatch::~ParentWatch() = default;
