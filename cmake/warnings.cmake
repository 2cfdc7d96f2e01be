# Compiler settings shared by all targets of the project.
add_library(vn_options INTERFACE)
target_compile_options(vn_options INTERFACE -Wall -Wextra -Wshadow -Wconversion -Wno-sign-conversion
    $<$<BOOL:${VN_WERROR}>:-Werror>)
target_compile_definitions(vn_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_FOREACH QT_DEPRECATED_WARNINGS)

if(VN_SANITIZE)
    add_compile_options(-fsanitize=${VN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${VN_SANITIZE})
endif()
if(VN_FUZZ)
    # The counters that lead the fuzzer; its main function comes with each target.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
