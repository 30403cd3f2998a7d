#include "widgets/failure.h"

namespace levora {

const Failure memory_ran_out(error_number::out_of_memory, "Out of memory");

void throw_type_mismatch() {
    throw Failure(error_number::type_mismatch, "Type mismatch");
}

void throw_overflow() {
    throw Failure(error_number::overflow, "Overflow");
}

} // namespace levora
