#include "widgets/failure.h"

namespace levora {

void throw_type_mismatch() {
    throw Failure(error_number::type_mismatch, "Type mismatch");
}

void throw_overflow() {
    throw Failure(error_number::overflow, "Overflow");
}

} // namespace levora
