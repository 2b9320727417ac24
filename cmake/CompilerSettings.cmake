set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

add_compile_options(-Wall -Wextra -Wpedantic)
if(ORBISDIAL_WERROR)
    add_compile_options(-Werror)
endif()

# Traces show source paths; they must not tell where the project was built.
add_compile_options("-fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=")

if(ORBISDIAL_SANITIZE)
    add_compile_options(-fsanitize=${ORBISDIAL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ORBISDIAL_SANITIZE})
endif()
