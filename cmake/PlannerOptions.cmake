# One INTERFACE target carries what every target of the project shares: standard, warnings,
# the toolkit's strict defines, sanitizers, and the hardening of release builds.
add_library(planner_options INTERFACE)
target_compile_features(planner_options INTERFACE cxx_std_20 c_std_11)

target_compile_options(planner_options INTERFACE
    -Wall -Wextra -Wconversion -Wshadow
    # g++ 12 sees overlapping, endless and overrunning copies in plain assignments of a std::string, and a
    # std::optional unset that was made empty, where sanitizers and clang see none.
    "$<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict;-Wno-stringop-overflow;-Wno-stringop-overread;-Wno-array-bounds;-Wno-maybe-uninitialized>"
    # Several sources in one: a test's class that stands on one of an unnamed namespace looks shared then.
    $<$<AND:$<BOOL:${PLANNER_UNITY}>,$<COMPILE_LANG_AND_ID:CXX,GNU>>:-Wno-subobject-linkage>
    $<$<BOOL:${PLANNER_WERROR}>:-Werror>)

target_compile_definitions(planner_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_STRICT_ITERATORS
    QT_USE_QSTRINGBUILDER
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(PLANNER_SANITIZERS)
    target_compile_options(planner_options INTERFACE
        -fsanitize=${PLANNER_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(planner_options INTERFACE -fsanitize=${PLANNER_SANITIZERS})
else()
    target_compile_definitions(planner_options INTERFACE $<$<CONFIG:Release>:_GLIBCXX_ASSERTIONS>)
endif()
if(NOT PLANNER_SANITIZERS AND NOT WIN32)
    target_compile_options(planner_options INTERFACE
        $<$<CONFIG:Release>:-fstack-protector-strong -fcf-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
    target_link_options(planner_options INTERFACE $<$<CONFIG:Release>:-Wl,-z,relro,-z,now,-z,noexecstack>)
endif()

if(PLANNER_COVERAGE)
    target_compile_options(planner_options INTERFACE --coverage -fprofile-update=atomic)
    target_compile_definitions(planner_options INTERFACE PLANNER_COVERAGE)
    target_link_options(planner_options INTERFACE --coverage)
endif()

include(CheckPIESupported)
check_pie_supported()

# What nearly every file reads, read once for each target that names it: a third of the build's time.
set(PLANNER_STD_HEADERS <algorithm> <array> <chrono> <functional> <memory> <optional> <string> <string_view> <vector>)
set(PLANNER_QT_HEADERS <QAbstractItemModel> <QApplication> <QLayout> <QPainter> <QPointer> <QWidget>)

# Every target of the project is made with these, so that none misses the shared options.
function(planner_library name)
    add_library(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE planner_options)
endfunction()

function(planner_executable name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE planner_options)
endfunction()
