# What the interface is drawn with and isn't ours: symbols and fonts. tools/fetch-assets puts them below build.
set(TARVIN_ASSETS ${PROJECT_SOURCE_DIR}/build/assets)
execute_process(COMMAND ${PROJECT_SOURCE_DIR}/tools/fetch-assets RESULT_VARIABLE result)
if(result)
    message(FATAL_ERROR "The symbols and fonts of the interface are missing. Run tools/fetch-assets where an npm "
                        "registry can be reached; later builds need no network.")
endif()
find_path(TARVIN_FIXED_WIDTH_FONTS JetBrainsMono-Medium.ttf
    PATHS /usr/share/fonts/truetype/jetbrains-mono $ENV{HOME}/Library/Fonts /Library/Fonts NO_DEFAULT_PATH
    DOC "The folder of the fixed-width font")
if(NOT TARVIN_FIXED_WIDTH_FONTS)
    message(FATAL_ERROR "The fixed-width font is missing. On Debian tools/install-packages build installs "
                        "fonts-jetbrains-mono; on macOS brew install --cask font-jetbrains-mono does.")
endif()

# tarvin_asset_resource(VAR NAME alias=file...): compiles the files, as they are, into one Qt resource below ":/NAME",
# and leaves the source file to compile in VAR. Uncompressed, so that what is read stays in the program's own pages.
function(tarvin_asset_resource variable name)
    set(text "<RCC><qresource prefix=\"/${name}\">\n")
    foreach(entry ${ARGN})
        string(REGEX MATCH "^([^=]+)=(.*)$" _ "${entry}")
        if(NOT EXISTS "${CMAKE_MATCH_2}")
            message(FATAL_ERROR "There is no ${CMAKE_MATCH_2}.")
        endif()
        string(APPEND text "<file alias=\"${CMAKE_MATCH_1}\">${CMAKE_MATCH_2}</file>\n")
    endforeach()
    string(APPEND text "</qresource></RCC>\n")
    set(file ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
    file(CONFIGURE OUTPUT ${file} CONTENT "${text}" @ONLY)
    qt_add_resources(sources ${file} OPTIONS --no-compress)
    set(${variable} ${sources} PARENT_SCOPE)
endfunction()
