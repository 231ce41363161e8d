// The playback library of this platform is built without discs: what could not be played is not offered.
#include "DvdDisc.h"

struct DvdDisc::Reader {};

DvdDisc::DvdDisc() = default;
DvdDisc::~DvdDisc() = default;

std::unique_ptr<DvdDisc> DvdDisc::open(const std::string &)
{
    return nullptr;
}

bool DvdDisc::hasMenu() const
{
    return false;
}

std::string DvdDisc::volumeName() const
{
    return {};
}

std::int64_t DvdDisc::readSectors(int, std::uint32_t, std::size_t, void *)
{
    return -1;
}
