# The desktop program: the ports on Qt, the QML module and the executable.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Network Qml Quick Svg DBus)
set(CMAKE_AUTOMOC ON)

file(GLOB desktop_sources CONFIGURE_DEPENDS platform/desktop/qt_*.cpp)
add_library(brimle_desktop STATIC ${desktop_sources})
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET GLOBAL xcb xcb-keysyms)
target_link_libraries(brimle_desktop PUBLIC brimle_posix Qt6::Widgets Qt6::Network Qt6::DBus PRIVATE PkgConfig::XCB)

file(GLOB view_sources CONFIGURE_DEPENDS views/qt/*.cpp views/qt/*.h)
file(GLOB qml_files RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS views/qml/*.qml)
file(GLOB symbols RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS views/symbols/*.svg)
foreach(file IN LISTS qml_files)
  get_filename_component(name ${file} NAME)
  set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${name})
endforeach()
foreach(file IN LISTS symbols)
  get_filename_component(name ${file} NAME)
  set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS symbols/${name})
endforeach()

set(icon ${CMAKE_SOURCE_DIR}/data/icons/org.brimle.Brimle.svg)
set_source_files_properties(${icon} PROPERTIES QT_RESOURCE_ALIAS org.brimle.Brimle.svg)

qt_add_library(brimle_views STATIC)
qt_add_qml_module(brimle_views
  URI Brimle
  VERSION 1.0
  RESOURCE_PREFIX /qt/qml
  OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/Brimle
  DEPENDENCIES QtQuick QtQml.Models
  SOURCES ${view_sources}
  QML_FILES ${qml_files}
  RESOURCES ${symbols} ${icon})
target_link_libraries(brimle_views PUBLIC brimle_core Qt6::Quick Qt6::Svg Qt6::Widgets)
set_target_properties(brimle_views PROPERTIES BRIMLE_HAS_GENERATED_CODE ON)
# The generated type registration includes headers by their bare names.
target_include_directories(brimle_views PRIVATE views/qt)

file(GLOB program_sources CONFIGURE_DEPENDS app/*.cpp)
add_executable(brimle ${program_sources})
target_link_libraries(brimle PRIVATE brimle_desktop brimle_views brimle_viewsplugin)
