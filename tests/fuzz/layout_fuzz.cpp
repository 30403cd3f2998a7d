// A layout that a person has edited: whatever stands in the file, it is a layout or a told fault.
#include "document/layout_file.h"
#include "document/report.h"
#include "widgets/failure.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace levora;
    try {
        const document::Report report(
            document::parse_layout({reinterpret_cast<const char*>(data), size}, "fuzz.rpt"));
        for (const std::string& object : report.objects())
            (void)report.text(object);
    } catch (const Failure&) {
        return 0;
    }
    return 0;
}
