// The playback library of this platform is built without discs: what could not be played is not offered.
#include "BluRayDisc.h"

struct BluRayDisc::Reader {};

BluRayDisc::BluRayDisc() = default;
BluRayDisc::~BluRayDisc() = default;

std::unique_ptr<BluRayDisc> BluRayDisc::open(const std::string &)
{
    return nullptr;
}

bool BluRayDisc::selectTitle(int)
{
    return false;
}

double BluRayDisc::seekSeconds(double)
{
    return -1.0;
}

std::int64_t BluRayDisc::read(void *, std::size_t)
{
    return -1;
}
