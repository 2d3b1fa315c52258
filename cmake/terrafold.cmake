# Flags of every target, and one function per kind of folder. A folder's sources are
# found, not listed; posix/ and win32/ inside it belong to one system each.

add_library(terrafold_flags INTERFACE)
target_include_directories(terrafold_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(MSVC)
    target_compile_options(terrafold_flags INTERFACE /W4 /WX /fp:precise /utf-8)
    target_compile_definitions(terrafold_flags INTERFACE NOMINMAX _CRT_SECURE_NO_WARNINGS)
else()
    # Geometry compares doubles exactly, so no multiply and add may be fused.
    target_compile_options(terrafold_flags INTERFACE
        -Wall -Wextra -Wpedantic -Werror -ffp-contract=off)
endif()
if(TERRAFOLD_SANITIZE)
    target_compile_options(terrafold_flags INTERFACE
        -fsanitize=${TERRAFOLD_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(terrafold_flags INTERFACE -fsanitize=${TERRAFOLD_SANITIZE})
endif()

function(terrafold_sources out dir)
    file(GLOB found CONFIGURE_DEPENDS ${dir}/*.cpp)
    if(WIN32)
        file(GLOB variant CONFIGURE_DEPENDS ${dir}/win32/*.cpp)
    else()
        file(GLOB variant CONFIGURE_DEPENDS ${dir}/posix/*.cpp)
    endif()
    set(${out} ${found} ${variant} PARENT_SCOPE)
endfunction()

# terrafold_library(FOLDER [folders it may include ...])
# The folder src/FOLDER as a static library of that name, "_" for "/". An #include of any other
# folder stops the build.
function(terrafold_library folder)
    string(REPLACE "/" "_" name ${folder})
    terrafold_sources(sources ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    add_library(${name} STATIC ${sources})
    list(TRANSFORM ARGN REPLACE "/" "_" OUTPUT_VARIABLE dependencies)
    target_link_libraries(${name} PUBLIC terrafold_flags ${dependencies})
    terrafold_check_includes(${folder} ${ARGN})
endfunction()

# Stops the build of a folder's library when a file of src/FOLDER includes a folder that it may
# not. What a folder may include passes on to those above it.
function(terrafold_check_includes folder)
    string(REPLACE "/" "_" name ${folder})
    set(allowed ${folder})
    foreach(dependency IN LISTS ARGN)
        get_property(reach GLOBAL PROPERTY terrafold_reach_${dependency})
        list(APPEND allowed ${reach})
    endforeach()
    list(REMOVE_DUPLICATES allowed)
    set_property(GLOBAL PROPERTY terrafold_reach_${folder} ${allowed})
    string(REPLACE ";" "," allowed "${allowed}")
    add_custom_target(${name}_includes
        COMMAND ${CMAKE_COMMAND} -DFOLDER=${PROJECT_SOURCE_DIR}/src/${folder} -DALLOWED=${allowed}
                -P ${PROJECT_SOURCE_DIR}/cmake/check_includes.cmake
        VERBATIM)
    add_dependencies(${name} ${name}_includes)
endfunction()
