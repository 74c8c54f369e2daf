// What the control answers its host, the log, and the addresses of the service.

#include "hosts/protocol/procedures/control_procedures.h"
#include "service/exchanges.h"
#include "session/object_safety.h"
#include "session/on_line_start.h"

namespace awizo::protocol {

namespace {

/// The level of a line that names none.
constexpr std::int16_t traceLevel = 4;

}  // namespace

void addHostProcedures(Procedures& procedures, AwizoWysylki& control) {
  Editor& editor = control.editor;
  procedures.add("OpenDebugLog", [&](Text path, std::int16_t level) {
    editor.session.log.OpenDebugLog(path, level);
  });
  procedures.add("WriteDebugLine", [&](Text message, std::optional<std::int16_t> level) {
    editor.session.log.WriteDebugLine(message, level.value_or(traceLevel));
  });
  procedures.add("GetBaseUrl", [](Text url) { return GetBaseUrl(url); });
  procedures.add("HasHostDocument", [&] { return HasHostDocument(editor.platform.page); });
  // null means no interface.
  using Interface = const std::optional<std::string>&;
  procedures.add("IObjectSafety_GetInterfaceSafetyOptions",
                 [](Interface iid, std::int32_t& supported, std::int32_t& enabled) {
                   IObjectSafety_GetInterfaceSafetyOptions(iid.value_or(""), supported, enabled);
                 });
  procedures.add("IObjectSafety_SetInterfaceSafetyOptions",
                 [](Interface iid, std::int32_t mask, std::int32_t options) {
                   IObjectSafety_SetInterfaceSafetyOptions(iid.value_or(""), mask, options);
                 });
}

}  // namespace awizo::protocol
