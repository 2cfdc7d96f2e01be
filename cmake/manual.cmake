# Puts the manual's pages and pictures into a target, as ":/manual/LANGUAGE/...", so that help shows
# what docs/manual holds.
function(vn_embed_manual target)
    set(folder ${PROJECT_SOURCE_DIR}/docs/manual)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${folder} ${folder}/*.md ${folder}/*.png)
    list(SORT files)
    set(entries "")
    foreach(file ${files})
        string(APPEND entries "    <file alias=\"${file}\">${folder}/${file}</file>\n")
    endforeach()
    set(collection ${CMAKE_CURRENT_BINARY_DIR}/manual.qrc)
    file(CONFIGURE OUTPUT ${collection} CONTENT
        "<RCC>\n<qresource prefix=\"/manual\">\n${entries}</qresource>\n</RCC>\n")
    qt5_add_resources(resource ${collection} OPTIONS --format-version 1)
    target_sources(${target} PRIVATE ${resource})
endfunction()
