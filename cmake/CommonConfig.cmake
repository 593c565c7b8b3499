# Compile flags of every target of this project, in one interface target.
add_library(lanterra_common INTERFACE)
target_compile_features(lanterra_common INTERFACE cxx_std_20)
target_include_directories(lanterra_common INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_options(lanterra_common INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(LANTERRA_WERROR)
    target_compile_options(lanterra_common INTERFACE -Werror)
endif()
target_compile_definitions(lanterra_common INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    LANTERRA_VERSION="${PROJECT_VERSION}")

if(LANTERRA_SANITIZE)
    # -fsanitize=vptr needs RTTI of Qt's own classes, which its libraries export only in part.
    set(sanitizers address,undefined)
    target_compile_options(lanterra_common INTERFACE
        -fsanitize=${sanitizers} -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(lanterra_common INTERFACE -fsanitize=${sanitizers})
endif()
if(LANTERRA_FUZZ)
    target_compile_options(lanterra_common INTERFACE -fsanitize=fuzzer-no-link)
endif()
