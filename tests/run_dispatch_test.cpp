// The public interface by dispatch id, as a late-binding host calls it.
#include <gtest/gtest.h>

#include <set>

#include "run_fixture.h"

namespace zt::testing {
namespace {

TEST(InterfaceTable, HoldsTheThirtyNineMembersInOrderWithUniqueIds) {
    std::set<int32_t> ids;
    for (std::size_t i = 0; i < kGraphControlMembers.size(); ++i) {
        EXPECT_EQ(kGraphControlMembers[i].number, static_cast<int>(i) + 1);
        ids.insert(kGraphControlMembers[i].dispId);
    }
    EXPECT_EQ(ids.size(), 39u);
    struct Row {
        int number;
        const char* name;
        int32_t id;
        uint8_t kinds;
    };
    for (const Row& r :
         {Row{1, "m_blnStartErr", 0x4003003A, kGet | kPut},
          Row{15, "ChgLineStatus", 0x6003006B, kMethod},
          Row{19, "HeightU", 0x68030009, kGet | kPut}, Row{22, "StatusU", 0x68030006, kGet},
          Row{23, "SetSamplingData", 0x6003007A, kMethod},
          Row{25, "GetGraphRequest", 0x6003007F, kMethod}, Row{32, "CtrlFlagU", 0x68030001, kPut},
          Row{39, "showComErrDlg", 0x600300C9, kMethod}}) {
        const InterfaceMember& m = kGraphControlMembers[static_cast<std::size_t>(r.number - 1)];
        EXPECT_EQ(m.name, r.name);
        EXPECT_EQ(m.dispId, r.id);
        EXPECT_EQ(m.kinds, r.kinds);
    }
}

struct Refusal {
    int32_t id;
    DispatchKind kind;
    std::vector<DispatchValue> args;
    int32_t status;
};

class DispatchRefusal : public ::testing::TestWithParam<Refusal> {};

TEST_P(DispatchRefusal, WrongCallsAreRefusedWithAStatusAndAMessage) {
    RunFixture f;
    Refusal r = GetParam();
    const DispatchResult result = dispatch(f.control, r.id, r.kind, r.args);
    EXPECT_EQ(result.status, r.status);
    EXPECT_FALSE(result.error.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Calls, DispatchRefusal,
    ::testing::Values(
        Refusal{0x12345678, DispatchKind::Method, {}, kDispMemberNotFound},
        Refusal{0x68030006, DispatchKind::PropertyPut, {int16_t{1}}, kDispMemberNotFound},
        Refusal{0x6003006B, DispatchKind::PropertyGet, {}, kDispMemberNotFound},
        Refusal{0x6003006B, DispatchKind::Method, {int32_t{1}}, kDispTypeMismatch},
        Refusal{0x6003006B, DispatchKind::Method, {}, kDispBadParamCount},
        Refusal{
            0x6003007A, DispatchKind::Method, {std::string("x"), int32_t{0}}, kDispTypeMismatch},
        Refusal{0x68030009, DispatchKind::PropertyPut, {1.0f, 2.0f}, kDispBadParamCount}));

TEST(Dispatch, CallsMembersAndWritesInOutArgumentsBack) {
    RunFixture f;
    std::vector<DispatchValue> none;
    DispatchResult caption = dispatch(f.control, 0x68030007, DispatchKind::PropertyGet, none);
    ASSERT_TRUE(caption.ok());
    EXPECT_EQ(std::get<std::string>(caption.value), "Graph");

    std::vector<DispatchValue> help{int32_t{0}, int32_t{0}, int32_t{0}, int16_t{0}, int32_t{0}};
    ASSERT_TRUE(dispatch(f.control, 0x60030090, DispatchKind::Method, help).ok());
    EXPECT_EQ(std::get<int32_t>(help[0]), 1400976);
    EXPECT_EQ(std::get<int16_t>(help[3]), -1);

    std::vector<DispatchValue> height{7499.9f};
    ASSERT_TRUE(dispatch(f.control, 0x68030009, DispatchKind::PropertyPut, height).ok());
    EXPECT_EQ(
        std::get<float>(dispatch(f.control, 0x68030009, DispatchKind::PropertyGet, none).value),
        7500.0f);
}

TEST(Dispatch, ReqCommandReachesTheHostSinkSynchronously) {
    RunFixture f;
    f.setChannel(1, 1, 201);
    std::vector<DispatchValue> none;
    f.control.surface().cmdStart.click();
    ASSERT_EQ(f.host.commands(), (std::vector<int32_t>{77}));
    EXPECT_EQ(
        std::get<int16_t>(dispatch(f.control, 0x68030006, DispatchKind::PropertyGet, none).value),
        1);
}

}  // namespace
}  // namespace zt::testing
