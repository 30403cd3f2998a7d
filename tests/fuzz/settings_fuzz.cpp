// Settings files of arbitrary bytes, and one write to each: what was written reads back, everything
// else stays, or the write is refused.

#include "session/settings_text.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

using namespace levora::session;

namespace {

void expect(bool holds) {
    if (!holds) std::abort();
}

// The input up to the next NUL, which is taken away.
std::string take_part(std::string_view& input) {
    const std::string part(input.substr(0, input.find('\0')));
    input.remove_prefix(std::min(part.size() + 1, input.size()));
    return part;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    std::string_view input(reinterpret_cast<const char*>(bytes), size);
    const std::string key = take_part(input);
    const std::string name = take_part(input);
    const std::string value = take_part(input);
    const std::string text(input);
    const SettingsContent before = read_settings(text, "settings.toml");
    const auto written = with_setting(text, key, name, Settings::Setting(value));
    expect(before.fault.empty() || !written);
    if (!written) return 0;
    const SettingsContent after = read_settings(*written, "settings.toml");
    expect(after.fault.empty());
    const SettingPlace* place = after.value(key, name);
    expect(place && place->value == Settings::Setting(value));
    const auto removed = with_setting(*written, key, name, std::nullopt);
    if (removed) expect(!read_settings(*removed, "").value(key, name));
    return 0;
}
