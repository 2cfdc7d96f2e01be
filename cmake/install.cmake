# Where things go when they are installed. They find each other by their places relative to one
# another, so the whole can be put anywhere, and nothing knows the folder it was built in.
set(VN_INSTALL_MODULEDIR ${CMAKE_INSTALL_LIBDIR}/quenlith-layers)
set(VN_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/quenlith-layers)
set(VN_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/quenlith-layers)
set(VN_INSTALL_PACKAGEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/QuenlithLayers)

# The way from one folder of the installation to another, both given below its top.
function(vn_relative_path from to result)
    file(RELATIVE_PATH path ${CMAKE_INSTALL_PREFIX}/${from} ${CMAKE_INSTALL_PREFIX}/${to})
    set(${result} ${path} PARENT_SCOPE)
endfunction()

vn_relative_path(${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_LIBDIR} VN_LIBRARIES_FROM_PROGRAMS)
vn_relative_path(${CMAKE_INSTALL_BINDIR} ${VN_INSTALL_MODULEDIR} VN_MODULE_FROM_PROGRAMS)
vn_relative_path(${CMAKE_INSTALL_BINDIR} ${VN_INSTALL_DATADIR} VN_DATA_FROM_PROGRAMS)

set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
# What is delivered names no folder of the build; debug information still does.
foreach(folder IN ITEMS ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR})
    add_compile_options($<$<NOT:$<CONFIG:Debug>>:-fmacro-prefix-map=${folder}=.>)
endforeach()

# A shared library with an SONAME, and the part of the development files that belongs to it.
function(vn_install_library name export_name)
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
        EXPORT_NAME ${export_name} INSTALL_RPATH $ORIGIN)
    install(TARGETS ${name} EXPORT QuenlithLayersTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
            NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endfunction()

function(vn_install_program name)
    set_target_properties(${name} PROPERTIES
        INSTALL_RPATH $ORIGIN/${VN_LIBRARIES_FROM_PROGRAMS})
    install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
endfunction()

# Folders of include/ that whoever links the target sees, here and when it is installed.
function(vn_public_headers name)
    foreach(folder ${ARGN})
        target_include_directories(${name} PUBLIC
            $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include/${folder}>
            $<INSTALL_INTERFACE:${VN_INSTALL_INCLUDEDIR}/${folder}>)
        install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/${folder}
            DESTINATION ${VN_INSTALL_INCLUDEDIR} COMPONENT development)
    endforeach()
endfunction()
