# Makes the menu entry, with what each catalogue has of its texts.
set(menu_entry ${CMAKE_CURRENT_BINARY_DIR}/orvane.desktop)

# The locales that desktops look for under another name than the catalogue's.
set(desktop_name_no nb)
set(desktop_name_zh zh_CN)

# Adds the line of a key in the catalogue's language to `translations`.
function(translate_menu_key key text catalogue locale)
  if(NOT catalogue MATCHES "<name>MenuEntry</name>.*<source>${text}</source>[^<]*<translation>([^<]+)")
    message(FATAL_ERROR "The catalogue ${locale} lacks \"${text}\" in its context MenuEntry")
  endif()
  set(translation ${CMAKE_MATCH_1})
  if(DEFINED desktop_name_${locale})
    set(locale ${desktop_name_${locale}})
  endif()
  set(translations "${translations}${key}[${locale}]=${translation}\n" PARENT_SCOPE)
endfunction()

file(GLOB catalogues CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/vxdcplugin_*.ts)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${catalogues})
foreach(file IN LISTS catalogues)
  file(READ ${file} catalogue)
  string(REGEX MATCH "vxdcplugin_(.+)\\.ts$" name ${file})
  set(locale ${CMAKE_MATCH_1})
  translate_menu_key(GenericName "Document Camera" "${catalogue}" ${locale})
  translate_menu_key(Comment "Show, photograph and film what lies under the camera" "${catalogue}" ${locale})
endforeach()
string(STRIP "${translations}" translations)
configure_file(orvane.desktop.in ${menu_entry} @ONLY)
