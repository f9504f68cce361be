# What every target of this project is compiled with. `orvane_compile(target)` applies it; users of the installed
# libraries get none of it but the language version.

if(ORVANE_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(ORVANE_SANITIZE_THREADS)
    add_compile_options(-fsanitize=thread)
    add_link_options(-fsanitize=thread)
endif()

if(ORVANE_BUILD_FUZZERS)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
        message(FATAL_ERROR "ORVANE_BUILD_FUZZERS needs Clang")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link)
    add_compile_definitions(FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION)
endif()

function(orvane_compile target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 $<$<BOOL:${ORVANE_WARNINGS_AS_ERRORS}>:/WX>)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion
                               $<$<BOOL:${ORVANE_WARNINGS_AS_ERRORS}>:-Werror>)
    endif()
endfunction()
