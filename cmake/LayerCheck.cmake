# Writes the link graph of the targets under src/ to link-graph.txt in the build tree, one line
# per library or program: its name, then what it links. The LayerDependencies test checks that
# graph against the layer order in scripts/check-layers.py. Included last, once every target
# has all its links.
function(tovra_collect_links dir)
    get_property(targets DIRECTORY ${dir} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target ${targets})
        get_target_property(type ${target} TYPE)
        if(NOT type MATCHES "^(STATIC_LIBRARY|SHARED_LIBRARY|EXECUTABLE)$")
            continue()
        endif()
        get_target_property(links ${target} LINK_LIBRARIES)
        get_target_property(interface_links ${target} INTERFACE_LINK_LIBRARIES)
        set(names)
        foreach(link IN LISTS links interface_links)
            string(REGEX REPLACE "^\\$<LINK_ONLY:(.+)>$" "\\1" link "${link}")
            # Conditional expressions carry Qt's compiled resources, not a dependency.
            if(link MATCHES "^\\$<|-NOTFOUND$")
                continue()
            endif()
            if(TARGET ${link})
                get_target_property(link_type ${link} TYPE)
                if(link_type STREQUAL "OBJECT_LIBRARY")
                    continue()
                endif()
            endif()
            list(APPEND names ${link})
        endforeach()
        list(REMOVE_DUPLICATES names)
        list(JOIN names " " joined)
        set_property(GLOBAL APPEND PROPERTY TOVRA_LINK_GRAPH "${target} ${joined}")
    endforeach()
    get_property(subdirectories DIRECTORY ${dir} PROPERTY SUBDIRECTORIES)
    foreach(subdirectory ${subdirectories})
        tovra_collect_links(${subdirectory})
    endforeach()
endfunction()

tovra_collect_links(${PROJECT_SOURCE_DIR}/src)
get_property(tovra_link_graph GLOBAL PROPERTY TOVRA_LINK_GRAPH)
list(JOIN tovra_link_graph "\n" tovra_link_graph)
file(WRITE ${CMAKE_BINARY_DIR}/link-graph.txt "${tovra_link_graph}\n")

if(TOVRA_BUILD_TESTS)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    add_test(NAME LayerDependencies
        COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/scripts/check-layers.py
                ${CMAKE_BINARY_DIR}/link-graph.txt)
endif()
