# One place for the compiler settings every Lullet target shares.
add_library(lullet_settings INTERFACE)
target_compile_features(lullet_settings INTERFACE cxx_std_20)
target_compile_options(lullet_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
    -Wimplicit-fallthrough)
target_compile_definitions(lullet_settings INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_UP_TO=0x060400
    U_SHOW_CPLUSPLUS_API=1)
# GCC 12 reports std::optional payloads as maybe-uninitialized where they are not.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(lullet_settings INTERFACE -Wno-maybe-uninitialized)
endif()
if(LULLET_WERROR)
    target_compile_options(lullet_settings INTERFACE -Werror)
endif()
if(LULLET_ASAN)
    target_compile_options(lullet_settings INTERFACE
        -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(lullet_settings INTERFACE -fsanitize=address,undefined)
endif()
