#include <new>
#include <string>

#include "common/runtime_error.h"

// What the standard library raises becomes a run-time error of ours. Its own exceptions carry
// texts, which nobody would read, at the price of a second kind of string, of a source of random
// numbers and of the list of all system errors: an eighth of the program.
namespace std {

void __throw_bad_alloc() { throw std::bad_alloc(); }
void __throw_bad_array_new_length() { throw std::bad_alloc(); }
void __throw_length_error(const char*) { throw std::bad_alloc(); }
void __throw_system_error(int) { throw std::bad_alloc(); }  // no lock, no thread to be had

void __throw_out_of_range(const char*) { throw errors::subscriptOutOfRange(); }
void __throw_out_of_range_fmt(const char*, ...) { throw errors::subscriptOutOfRange(); }

void __throw_invalid_argument(const char*) { throw errors::invalidArgument(); }
void __throw_logic_error(const char*) { throw errors::invalidArgument(); }
void __throw_runtime_error(const char*) { throw errors::invalidArgument(); }
void __throw_bad_cast() { throw errors::invalidArgument(); }
void __throw_bad_function_call() { throw errors::emptyObject(); }

}  // namespace std
