#include "sim/sim_message_box.h"

#include <gtest/gtest.h>

#include "sim/sim_common_library.h"

namespace zt::sim {
namespace {

int32_t show(ztMessageBox& box, std::string text, int32_t style) {
    std::string title = "Graph";
    int32_t a4 = 0, a5 = 2, a6 = 0, a7 = 0, a8 = 0, a9 = -1, a10 = 0, result = -99;
    box.ShowMessage(text, style, title, a4, a5, a6, a7, a8, a9, a10, result);
    return result;
}

TEST(SimMessageBox, RecordsEveryBoxAndAnswersFromTheScriptThenOk) {
    SimMessageBox box;
    box.answerNext(kResultCancel);
    EXPECT_EQ(show(box, "first", kStyleConfirm), kResultCancel);
    EXPECT_EQ(show(box, "second", kStyleNotice), kResultOk);
    ASSERT_EQ(box.boxes().size(), 2u);
    EXPECT_EQ(box.boxes()[0].text, "first");
    EXPECT_EQ(box.boxes()[0].style, 305);
    EXPECT_EQ(box.boxes()[0].title, "Graph");
    EXPECT_EQ(box.boxes()[0].args, (std::array<int32_t, 7>{0, 2, 0, 0, 0, -1, 0}));
    EXPECT_EQ(box.boxes()[0].result, kResultCancel);
    EXPECT_EQ(box.boxes()[1].style, 48);
    box.answerNext(kResultCancel);
    box.clear();  // forgets boxes and script
    EXPECT_TRUE(box.boxes().empty());
    EXPECT_EQ(show(box, "b", kStyleConfirm), kResultOk);
}

TEST(SimCommonLibrary, AnswersFromTheLinkItWasGiven) {
    SimLink link = SimLink::standard();
    link.setOffline(2);
    SimCommonLibrary library(link);
    STATION_STATE state;
    int32_t value = 0;
    library.common().GetStationState(2, state, value);
    EXPECT_EQ(state.lngLinkState, 0);
    show(library.messageBox(), "x", kStyleNotice);
    EXPECT_EQ(library.boxes().boxes().size(), 1u);
}

}  // namespace
}  // namespace zt::sim
