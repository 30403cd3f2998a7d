#include "session/common_services.h"
#include "widgets/value_text.h"

namespace levora::session {

std::string RegReadValue(const Session& session, const std::string& key, const std::string& name) {
    constexpr std::size_t buffer_size = 1024; // characters, with the closing NUL
    const auto setting = session.settings.read(key, name);
    if (!setting) return {};
    if (const auto* number = std::get_if<std::int64_t>(&*setting))
        return number_text(static_cast<double>(*number));
    const auto& text = std::get<std::string>(*setting);
    if (text.size() >= buffer_size) return {};
    return text.substr(0, text.find('\0'));
}

bool RegWriteString(Session& session, const std::string& key, const std::string& name,
                    const std::string& text) {
    return session.settings.write(key, name, text.empty() ? std::string(" ") : text);
}

} // namespace levora::session
