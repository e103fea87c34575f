#include <exception>
#include <utility>

#include "control/graph_control.h"
#include "control/graph_control_interface.h"

namespace zt {

const InterfaceMember* findMember(int32_t dispId) {
    for (const InterfaceMember& m : kGraphControlMembers)
        if (m.dispId == dispId) return &m;
    return nullptr;
}

namespace {

DispatchResult refused(int32_t status, std::string error) {
    DispatchResult r;
    r.status = status;
    r.error = std::move(error);
    return r;
}

uint8_t kindBit(DispatchKind kind) {
    switch (kind) {
        case DispatchKind::Method:
            return kMethod;
        case DispatchKind::PropertyGet:
            return kGet;
        case DispatchKind::PropertyPut:
            return kPut;
    }
    return 0;
}

// Checks the argument count and types of one call and hands out typed references.
class Args {
  public:
    Args(std::vector<DispatchValue>& values, std::string_view member)
        : values_(values), member_(member) {}

    template <typename... T>
    bool expect() {
        if (values_.size() != sizeof...(T)) {
            error_ = refused(kDispBadParamCount,
                             std::string(member_) + ": expected " + std::to_string(sizeof...(T)) +
                                 " argument(s), got " + std::to_string(values_.size()));
            return false;
        }
        std::size_t i = 0;
        return (check<T>(i++) && ...);
    }

    template <typename T>
    T& at(std::size_t i) {
        return std::get<T>(values_[i]);
    }

    DispatchResult error() const { return error_; }

  private:
    template <typename T>
    bool check(std::size_t i) {
        if (std::holds_alternative<T>(values_[i])) return true;
        error_ = refused(kDispTypeMismatch, std::string(member_) + ": argument " +
                                                std::to_string(i + 1) + " has the wrong type");
        return false;
    }

    std::vector<DispatchValue>& values_;
    std::string_view member_;
    DispatchResult error_;
};

DispatchResult done(DispatchValue value = {}) {
    DispatchResult r;
    r.value = std::move(value);
    return r;
}

DispatchResult call(ztGraphControl& c, const InterfaceMember& m, DispatchKind kind, Args& a) {
    const bool put = kind == DispatchKind::PropertyPut;
    switch (m.number) {
        case 1:
            if (put) {
                if (!a.expect<bool>()) return a.error();
                c.m_blnStartErr(a.at<bool>(0));
                return done();
            }
            if (!a.expect<>()) return a.error();
            return done(c.m_blnStartErr());
        case 2:
        case 3: {
            if (!a.expect<std::string, std::string, std::string, std::string>()) return a.error();
            bool r = m.number == 2 ? c.GetInifileString(a.at<std::string>(0), a.at<std::string>(1),
                                                        a.at<std::string>(2), a.at<std::string>(3))
                                   : c.SetInifileString(a.at<std::string>(0), a.at<std::string>(1),
                                                        a.at<std::string>(2), a.at<std::string>(3));
            return done(r);
        }
        case 4:
            if (!a.expect<>()) return a.error();
            return done(c.ReturnChCount());
        case 5:
            if (!a.expect<std::vector<MSG_ITEM>>()) return a.error();
            c.SetMsgItem(a.at<std::vector<MSG_ITEM>>(0));
            return done();
        case 6:
            if (!a.expect<MONI_ITEM, int32_t>()) return a.error();
            c.SetMonitorItem(a.at<MONI_ITEM>(0), a.at<int32_t>(1));
            return done();
        case 7:
            if (!a.expect<INIFILE_ITEM>()) return a.error();
            c.SetIniFileItem(a.at<INIFILE_ITEM>(0));
            return done();
        case 8:
            if (!a.expect<int16_t, MODEL_INFO, PARAMETER_INFO>()) return a.error();
            c.SetParameter(a.at<int16_t>(0), a.at<MODEL_INFO>(1), a.at<PARAMETER_INFO>(2));
            return done();
        case 9:
            if (!a.expect<>()) return a.error();
            return done(c.GetParameter());
        case 10:
            if (!a.expect<int16_t, SYS_INFO, PARAMETER_INFO>()) return a.error();
            c.SetSysInfo(a.at<int16_t>(0), a.at<SYS_INFO>(1), a.at<PARAMETER_INFO>(2));
            return done();
        case 11:
            if (!a.expect<int16_t, SYS_INFO, INV_STATUS>()) return a.error();
            c.SetSysStatus(a.at<int16_t>(0), a.at<SYS_INFO>(1), a.at<INV_STATUS>(2));
            return done();
        case 12:
            if (!a.expect<PrinterObject*>()) return a.error();
            c.PrintOut(a.at<PrinterObject*>(0));
            return done();
        case 13:
            if (!a.expect<std::string, SYS_INFO>()) return a.error();
            return done(c.ImportFile(a.at<std::string>(0), a.at<SYS_INFO>(1)));
        case 14:
            if (!a.expect<std::string>()) return a.error();
            return done(c.ExportFile(a.at<std::string>(0)));
        case 15:
            if (!a.expect<int16_t>()) return a.error();
            c.ChgLineStatus(a.at<int16_t>(0));
            return done();
        case 16:
            if (!a.expect<int16_t>()) return a.error();
            c.ChgSelectNode(a.at<int16_t>(0));
            return done();
        case 17:
            if (!a.expect<int16_t, int16_t>()) return a.error();
            c.QueryUnLoadU(a.at<int16_t>(0), a.at<int16_t>(1));
            return done();
        case 18:
            if (!a.expect<ztCommon*>()) return a.error();
            c.setCommonObj(a.at<ztCommon*>(0));
            return done();
        case 19:
        case 20:
            if (put) {
                if (!a.expect<float>()) return a.error();
                if (m.number == 19)
                    c.HeightU(a.at<float>(0));
                else
                    c.WidthU(a.at<float>(0));
                return done();
            }
            if (!a.expect<>()) return a.error();
            return done(m.number == 19 ? c.HeightU() : c.WidthU());
        case 21:
            if (!a.expect<>()) return a.error();
            return done(c.CaptionU());
        case 22:
            if (!a.expect<>()) return a.error();
            return done(c.StatusU());
        case 23:
            if (!a.expect<GRAPH_RESULT_INFO, int32_t>()) return a.error();
            c.SetSamplingData(a.at<GRAPH_RESULT_INFO>(0), a.at<int32_t>(1));
            return done();
        case 24:
            if (!a.expect<GRAPH_REQUEST>()) return a.error();
            c.SetGraphRequest(a.at<GRAPH_REQUEST>(0));
            return done();
        case 25:
            if (!a.expect<>()) return a.error();
            return done(c.GetGraphRequest());
        case 26:
            if (!a.expect<int32_t>()) return a.error();
            c.EventResCommand(a.at<int32_t>(0));
            return done();
        case 27:
            if (!a.expect<int32_t, int32_t, int32_t, int16_t, int32_t>()) return a.error();
            c.GetHelpContextId(a.at<int32_t>(0), a.at<int32_t>(1), a.at<int32_t>(2),
                               a.at<int16_t>(3), a.at<int32_t>(4));
            return done();
        case 28:
            if (!a.expect<>()) return a.error();
            return done(c.ImportFileExtensionU());
        case 29:
            if (!a.expect<>()) return a.error();
            return done(c.ExportFileExtensionU());
        case 30:
            if (!a.expect<>()) return a.error();
            return done(c.ImportFileFilterU());
        case 31:
            if (!a.expect<>()) return a.error();
            return done(c.ExportFileFilterU());
        case 32:
            if (!a.expect<int32_t>()) return a.error();
            c.CtrlFlagU(a.at<int32_t>(0));
            return done();
        case 33:
            if (!a.expect<Font>()) return a.error();
            c.FontU(a.at<Font>(0));
            return done();
        case 34:
            if (!a.expect<CONT_INFO>()) return a.error();
            c.setContainerInfo(a.at<CONT_INFO>(0));
            return done();
        case 35:
            if (!a.expect<std::string, VERSION_INFO>()) return a.error();
            return done(c.SaveKivFile(a.at<std::string>(0), a.at<VERSION_INFO>(1)));
        case 36:
            if (!a.expect<std::string, VERSION_INFO, PROGRAM_VERSION>()) return a.error();
            return done(c.LoadKivFile(a.at<std::string>(0), a.at<VERSION_INFO>(1),
                                      a.at<PROGRAM_VERSION>(2)));
        case 37:
            if (!a.expect<int32_t>()) return a.error();
            c.SetGraphColor(a.at<int32_t>(0));
            return done();
        case 38:
            if (!a.expect<>()) return a.error();
            return done(c.getChNode());
        case 39:
            if (!a.expect<int32_t, int32_t>()) return a.error();
            c.showComErrDlg(a.at<int32_t>(0), a.at<int32_t>(1));
            return done();
        default:
            return refused(kDispMemberNotFound, "no member " + std::to_string(m.number));
    }
}

}  // namespace

DispatchResult dispatch(ztGraphControl& control, int32_t dispId, DispatchKind kind,
                        std::vector<DispatchValue>& args) {
    const InterfaceMember* member = findMember(dispId);
    if (member == nullptr) return refused(kDispMemberNotFound, "unknown dispatch id");
    if ((member->kinds & kindBit(kind)) == 0)
        return refused(kDispMemberNotFound,
                       std::string(member->name) + " cannot be called this way");
    // A terminated control answers nothing: every member is refused, whatever it is.
    if (control.terminated())
        return refused(kDispDisconnected,
                       std::string(member->name) + ": the control has been terminated");
    Args a(args, member->name);
    try {
        return call(control, *member, kind, a);
    } catch (const AutomationError& e) {
        return refused(e.code(), e.what());
    } catch (const std::exception& e) {
        return refused(static_cast<int32_t>(0x80004005), e.what());
    }
}

}  // namespace zt
