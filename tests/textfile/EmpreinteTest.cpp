#include "textfile/empreinte.h"

#include <gtest/gtest.h>
#include <string>

namespace vermo {
namespace {

TEST(Fingerprint, IsTheSameOnEveryMachineAndSeesOneBit) {
    EXPECT_EQ(empreinteDe(""), (Empreinte{0x99aa06d3014798d8, 0x6001c324468d497f}));
    std::string octets(100'000, 'a');
    const Empreinte avant = empreinteDe(octets);
    octets[77'777] ^= 1;
    EXPECT_NE(empreinteDe(octets), avant);
}

} // namespace
} // namespace vermo
