// The C++ face where there are no exceptions: results that tell why there is no value.
#define TARNS_NO_EXCEPTIONS
#include "tarns.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(CppResultsTest, HoldsValueOrStatus)
{
    const std::vector<float> values{3, -1, 4};
    const auto sum = tarns::sum(values);
    ASSERT_TRUE(sum);
    EXPECT_EQ(*sum, 6.0F);
    const std::vector<float> none;
    const auto impossible = tarns::sum(none);
    EXPECT_FALSE(impossible.has_value());
    EXPECT_LT(impossible.status(), tarnStsNoErr);
    EXPECT_STREQ(impossible.message(), tarnGetStatusString(impossible.status()));
    EXPECT_EQ(impossible.value_or(7.0F), 7.0F);
}

TEST(CppResultsTest, MakesObjectsWithoutConstructorsThatFail)
{
    auto made = tarns::Fft<float>::make(16);
    ASSERT_TRUE(made);
    tarns::Fft<float> transform = *std::move(made);
    std::vector<std::complex<float>> bins(transform.bins());
    EXPECT_EQ(transform.forward(std::vector<float>(16, 1.0F), bins), tarnStsNoErr);
    EXPECT_EQ(bins[0].real(), 16.0F);
    EXPECT_EQ(transform.forward(std::vector<float>(15, 1.0F), bins), tarnStsSizeErr);
    EXPECT_EQ(tarns::Fft<float>::make(0).status(), tarnStsSizeErr);
    tarns::Fir<double> empty;
    std::vector<double> samples(4);
    EXPECT_EQ(empty(samples, samples), tarnStsNullPtrErr);
}

} // namespace
