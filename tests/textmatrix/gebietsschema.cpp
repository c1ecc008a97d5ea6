// Every test of this executable runs with the process switched to a German locale, whose decimal
// comma would show up in any number text that depends on the process locale.

#include <clocale>
#include <gtest/gtest.h>

namespace {

class DeutschesGebietsschema : public ::testing::Environment {
public:
    void SetUp() override {
        ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr)
            << "the locale de_DE.UTF-8 is missing (scripts/einrichten.sh generates it)";
        // Without a comma here the number tests would prove nothing about locale independence.
        ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

const ::testing::Environment* const umgebung =
    ::testing::AddGlobalTestEnvironment(new DeutschesGebietsschema);

} // namespace
