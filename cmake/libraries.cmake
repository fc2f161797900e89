include(${CMAKE_CURRENT_LIST_DIR}/unity.cmake)

# Half the compile time goes into Qt's headers: each library precompiles those that most of its files use. Only these,
# because each precompiled header costs a little in every file. All files still include what they use, and compile
# without.
set(ZR3_CORE_HEADERS <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QString> <QStringList> <pugixml.hpp> <algorithm>
    <functional> <map> <memory> <optional> <string> <vector>)
set(ZR3_DESKTOP_HEADERS <QApplication> <QComboBox> <QDialog> <QLabel> <QLineEdit> <QMenu> <QPainter> <QPlainTextEdit>
    <QPushButton> <QScrollArea> <QTableView> <QTimer> <QVBoxLayout> ${ZR3_CORE_HEADERS})
function(zr3_precompile_headers target)
    if(ZR3_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE ${ARGN})
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
    endif()
endfunction()

# The first library of a kind precompiles the headers for all others.
set(ZR3_CORE_FIRST zr3base)
set(ZR3_DESKTOP_FIRST zr3controls)
function(zr3_share_headers target kind)
    set(first ${ZR3_${kind}_FIRST})
    if(target STREQUAL first)
        zr3_precompile_headers(${target} ${ZR3_${kind}_HEADERS})
    elseif(ZR3_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} REUSE_FROM ${first})
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
    endif()
endfunction()

# One library for each floor, named after its folder and linked only with floors below it: zr3_library(FOLDER
# CORE|DESKTOP LINKS LIBRARY... SOURCES FILE...). In the build of ./lint each file of the core is compiled separately,
# which shows whether it includes what it uses.
function(zr3_library folder kind)
    cmake_parse_arguments(floor "" "" "LINKS;SOURCES" ${ARGN})
    set(name zr3${folder})
    add_library(${name} STATIC ${floor_SOURCES})
    if(kind STREQUAL DESKTOP)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
    endif()
    target_link_libraries(${name} PUBLIC zr3_options ${floor_LINKS})
    zr3_harden(${name})
    if(ZR3_FUZZ AND kind STREQUAL CORE)
        # Run about a million times when fuzzing, so a little optimisation pays; of the debug data the line tables are
        # enough.
        target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link -O1 -gline-tables-only)
    endif()
    if(ZR3_LINT AND kind STREQUAL CORE)
        return()
    endif()
    zr3_share_headers(${name} ${kind})
    # Deferred until all targets are defined.
    cmake_language(EVAL CODE "cmake_language(DEFER DIRECTORY [[${CMAKE_SOURCE_DIR}]] CALL zr3_unite [[${name}]])")
endfunction()
