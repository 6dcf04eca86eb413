// What the library throws where a program has made a mistake: its own versions of these functions carry texts and a second kind of strings,
// 40 KB that no user ever reads. Whoever catches std::exception catches these too.
#include <exception>
#include <new>

namespace {

class ProgramError : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "an error in the program"; }
};

}  // namespace

namespace std {

[[noreturn]] void __throw_bad_alloc();
[[noreturn]] void __throw_bad_array_new_length();
[[noreturn]] void __throw_bad_function_call();
[[noreturn]] void __throw_length_error(const char* text);
[[noreturn]] void __throw_logic_error(const char* text);
[[noreturn]] void __throw_out_of_range_fmt(const char* format, ...);

void __throw_bad_alloc()
{
    throw bad_alloc();
}

void __throw_bad_array_new_length()
{
    throw bad_alloc();
}

void __throw_bad_function_call()
{
    throw ProgramError();
}

void __throw_length_error(const char*)
{
    throw ProgramError();
}

void __throw_logic_error(const char*)
{
    throw ProgramError();
}

void __throw_out_of_range_fmt(const char*, ...)
{
    throw ProgramError();
}

}  // namespace std
