# What Debian asks of every program it runs: an executable at a random address, tables of functions
# that nobody writes to, and checks of the stack and of copies into buffers. For all that the
# project builds in Release; the compiler's checks would only hide behind those of the sanitizers.

include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

target_compile_options(
  tomely_options
  INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong;-fstack-clash-protection>
            # -Wformat: the second would mean nothing without it.
            $<$<CONFIG:Release>:-Wformat;-Werror=format-security>
            $<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>)
target_link_options(tomely_options INTERFACE -Wl,-z,relro -Wl,-z,now)
