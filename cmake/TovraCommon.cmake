# One INTERFACE target carries the language standard, the warnings and the Qt strictness
# defines; every library, executable and test links it.
add_library(tovra_common INTERFACE)
target_compile_features(tovra_common INTERFACE cxx_std_20)
target_compile_options(tovra_common INTERFACE
    -Wall -Wextra -Wpedantic -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-qual -Wformat=2 -Wmissing-declarations -Wundef
    $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>
    $<$<BOOL:${TOVRA_WERROR}>:-Werror>)
target_compile_definitions(tovra_common INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    TOVRA_VERSION="${PROJECT_VERSION}+${TOVRA_BUILD_NUMBER}"
    TOVRA_VENDOR_HOST="${TOVRA_VENDOR_HOST}")

if(TOVRA_SANITIZE)
    set(_san -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_compile_options(tovra_common INTERFACE ${_san})
    target_link_options(tovra_common INTERFACE ${_san})
endif()

if(TOVRA_FUZZ)
    # Coverage instrumentation everywhere; the fuzz executables add the libFuzzer driver.
    set(_fuzz -fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
    target_compile_options(tovra_common INTERFACE ${_fuzz})
    target_link_options(tovra_common INTERFACE -fsanitize=address,undefined)
endif()

if(NOT TOVRA_SANITIZE AND NOT TOVRA_FUZZ)
    # Optimised builds, the package among them, check buffer bounds of the C library's string
    # and memory calls at run time. It needs optimisation; the sanitizers check these themselves.
    target_compile_options(tovra_common INTERFACE
        "$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()
