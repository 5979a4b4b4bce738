// SPDX-License-Identifier: MIT
//
// The declaration of every filter in the list matches the filter.
#include "graphics/filters/FilterSet.h"

#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"

#include <QSet>

#include <algorithm>
#include <type_traits>

namespace grisal::test
{

namespace
{

using graphics::FilterSet;
using graphics::IFilter;

class FilterDeclarationsTest : public GlTest
{
protected:
    /// Calls visit(filter, declaration) for each filter of the list.
    template <typename Visit>
    void forEachDeclaration(Visit visit)
    {
        FilterSet filters;
        filters.forEach([&](auto &filter) { visit(filter, filter.declaration()); });
    }
};

template <typename Filter>
using ParametersOf = typename std::decay_t<Filter>::Parameters;

} // namespace

TEST_F(FilterDeclarationsTest, HaveTheUniqueNameOfTheFilter)
{
    QSet<QString> names;
    int count = 0;
    forEachDeclaration([&](const IFilter &filter, const auto &declaration) {
        EXPECT_EQ(filter.getName(), declaration.name);
        names.insert(QString::fromLatin1(declaration.name));
        ++count;
    });
    EXPECT_EQ(names.size(), count);
}

TEST_F(FilterDeclarationsTest, HaveDefaultsWithinTheirRanges)
{
    forEachDeclaration([](const auto &filter, const auto &declaration) {
        ParametersOf<decltype(filter)> defaults;
        for (const auto &parameter : declaration.parameters) {
            const auto values = parameter.values(defaults);
            EXPECT_FALSE(values.empty()) << declaration.name << ' ' << parameter.name;
            EXPECT_TRUE(
                std::all_of(values.begin(), values.end(),
                            [&](float value) { return value >= parameter.lowest && value <= parameter.highest; }))
                << declaration.name << ' ' << parameter.name;
        }
    });
}

TEST_F(FilterDeclarationsTest, HaveNeutralValuesThatChangeNothing)
{
    const BytePixels ramp = rampPicture<std::uint8_t>(64, 48);
    int neutralValues = 0;
    forEachDeclaration([&](auto &filter, const auto &declaration) {
        for (const auto &parameter : declaration.parameters) {
            if (!parameter.neutral) {
                continue;
            }
            ++neutralValues;
            ParametersOf<decltype(filter)> parameters;
            const auto values = parameter.values(parameters);
            std::fill(values.begin(), values.end(), *parameter.neutral);
            filter.setParameters(parameters);
            if constexpr (requires { filter.maxWidth; }) {
                filter.maxWidth = 64;
                filter.maxHeight = 48;
            }
            if constexpr (requires { filter.setSigma(1.0F); }) {
                filter.setSigma(1);
            }
            EXPECT_TRUE(picturesNear(declaration.name, runFilter(filter, ramp), ramp)) << parameter.name;
        }
    });
    EXPECT_GE(neutralValues, 2) << "at least the grain's weights and the vignette's strength";
}

// Tiles have no border: a filter that reads neighbouring pixels would cause seams at their edges.
TEST_F(FilterDeclarationsTest, DeclareNoFilterThatReadsNeighbours)
{
    forEachDeclaration([](const IFilter &, const auto &declaration) {
        EXPECT_FALSE(declaration.readsNeighbours) << declaration.name;
    });
}

TEST_F(FilterDeclarationsTest, OfferAMaskWhereTheResultDependsOnThePosition)
{
    forEachDeclaration([](const IFilter &filter, const auto &declaration) {
        EXPECT_EQ(filter.makePositionMask != nullptr, declaration.dependsOnPosition) << declaration.name;
    });
}

} // namespace grisal::test
