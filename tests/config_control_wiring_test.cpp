#include <gtest/gtest.h>

#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt {
namespace {

TEST(ControlSheets, HostStationsAndChannelChoicesReachTheHostMembers) {
    sim::SimCommonLibrary library;
    ztGraphControl control(library);
    ui::SpreadSheet& ch = control.surface().sprChannel;
    EXPECT_EQ(ch.text(0, 3), "Name");
    EXPECT_EQ(control.surface().sprSampling.text(1, 3), "100");

    SYS_INFO sysInfo = library.sim().link().sysInfo();
    PARAMETER_INFO parameter;
    control.SetSysInfo(0, sysInfo, parameter);
    EXPECT_EQ(ch.listItems(4, 2), (std::vector<std::string>{"None", "01", "02", "03", "05"}));

    EXPECT_TRUE(ch.chooseListItem(5, 2, "02"));
    EXPECT_TRUE(ch.chooseListItem(5, 3, "*RUN"));
    EXPECT_EQ(control.ReturnChCount(), 1);
    EXPECT_EQ(control.getChNode(), 2);

    MONI_ITEM moni;
    const auto before = control.state().tableItem;
    control.SetMonitorItem(moni, 9);
    EXPECT_EQ(control.state().tableItem, before);
    control.SetMonitorItem(moni, 5);
    EXPECT_EQ(control.state().tableItem[5].udtInOut_Moni.at(0).lngItemCode, kNoneItem);
}

}  // namespace
}  // namespace zt
