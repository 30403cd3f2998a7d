#pragma once

#include <stdexcept>
#include <string>

namespace levora {

// What a store, a file or a conversion throws, and what the common error report shows: the error's
// number and its description. Never thrown for a person's wrong input, which has message boxes.
class Failure : public std::runtime_error {
public:
    Failure(int error_number, const std::string& description)
        : std::runtime_error(description), number(error_number) {}

    int number;
};

namespace error_number {
constexpr int invalid_call = 5;
constexpr int overflow = 6;
constexpr int out_of_memory = 7;
constexpr int subscript = 9;
constexpr int type_mismatch = 13;
constexpr int bad_file_name = 52;
constexpr int file_not_found = 53;
constexpr int disk_full = 61;
constexpr int permission_denied = 70;
constexpr int path_access = 75;
constexpr int path_not_found = 76;
constexpr int object_not_set = 91;
constexpr int store_not_found = 3024;
constexpr int closed_row_set = 3704;
constexpr int closed_connection = 3709;
constexpr int printer_cancelled = 32755;
} // namespace error_number

// What a person is told when memory runs out anywhere. It is made beforehand, as nothing can be made then.
extern const Failure memory_ran_out;

// Thrown by conversions whose text is no number, or no value of the wanted type (13).
[[noreturn]] void throw_type_mismatch();
// Thrown by conversions whose number does not fit the wanted type (6).
[[noreturn]] void throw_overflow();

} // namespace levora
