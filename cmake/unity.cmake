# Compiles several files of a target together: headers are read, and templates instantiated, once for all of them. A
# full build takes less than half the time, a rebuild after a change to one file longer. The groups are determined at
# each configuration, so that no file depends on another's names.
option(ZR3_UNITY "Compile several files at a time" OFF)

function(zr3_unite target)
    if(NOT ZR3_UNITY)
        return()
    endif()
    get_target_property(folder ${target} SOURCE_DIR)
    get_target_property(named ${target} SOURCES)
    list(FILTER named INCLUDE REGEX "^[^$]*\\.cpp$")
    set(sources)
    foreach(source IN LISTS named)
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${folder})
        list(APPEND sources ${source})
    endforeach()
    execute_process(COMMAND ${ZR3_PYTHON} -B ${CMAKE_SOURCE_DIR}/cmake/unity_groups.py 10 ${sources}
        OUTPUT_VARIABLE lines COMMAND_ERROR_IS_FATAL ANY)
    # Each line is a list: split the output at the line ends, not at the semicolons.
    string(REPLACE ";" "|" lines "${lines}")
    string(REPLACE "\n" ";" lines "${lines}")
    set(number 0)
    foreach(line IN LISTS lines)
        string(REPLACE "|" ";" group "${line}")
        list(LENGTH group files)
        if(files GREATER 1)
            math(EXPR number "${number} + 1")
            set_source_files_properties(${group} TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP ${number})
        endif()
    endforeach()
    # The class with internal linkage is in a file that the compiled file includes, not in the compiled file itself.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
