# What a package adds to the install rules of the programs and resources:
# man pages made from the programs' own --help, the documentation folder,
# and the Debian package settings for `cpack -G DEB` (scripts/package).
include(GNUInstallDirs)

# Man pages: help2man runs the freshly built program, so the pages always
# describe the options it really has. A sanitizer build skips them: running
# the instrumented program at build time adds nothing and can fail on
# findings that the tests report better.
find_program(HELP2MAN help2man)
if(HELP2MAN AND NOT LUMIDATE_SANITIZE AND NOT LUMIDATE_FUZZ)
  set(man_pages)
  # lumidate_man_page(TARGET "one-line description" [INCLUDE file DEPENDS ...])
  function(lumidate_man_page target description)
    cmake_parse_arguments(M "" "INCLUDE" "DEPENDS" ${ARGN})
    set(page ${CMAKE_BINARY_DIR}/man/${target}.1)
    set(include_option)
    if(M_INCLUDE)
      set(include_option --include=${M_INCLUDE})
    endif()
    add_custom_command(
      OUTPUT ${page}.gz
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
      # No display is needed: both programs answer --help and --version
      # before they start a window system connection.
      COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
              ${HELP2MAN} --no-info --no-discard-stderr --section=1 --name=${description}
              ${include_option} --output=${page} $<TARGET_FILE:${target}>
      COMMAND gzip -9nf ${page}
      DEPENDS ${target} ${M_INCLUDE} ${M_DEPENDS}
      COMMENT "Writing the man page of ${target}"
      VERBATIM)
    set(man_pages ${man_pages} ${page}.gz PARENT_SCOPE)
    install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  endfunction()

  # The options of each lumidate-cli command, from the command's --help.
  set(cli_commands ${CMAKE_BINARY_DIR}/man/lumidate-cli-commands.h2m)
  add_custom_command(
    OUTPUT ${cli_commands}
    COMMAND ${CMAKE_COMMAND} -DCLI=$<TARGET_FILE:lumidate-cli> -DOUTPUT=${cli_commands}
            -P ${CMAKE_SOURCE_DIR}/cmake/CliCommandsManSection.cmake
    DEPENDS lumidate-cli lumidate-cli-commands ${CMAKE_SOURCE_DIR}/cmake/CliCommandsManSection.cmake
    VERBATIM)
  lumidate_man_page(lumidate-cli "read, shift and set the dates stored in photo files"
                    INCLUDE ${cli_commands} DEPENDS lumidate-cli-commands)
  lumidate_man_page(lumidate "show and correct the dates stored in photo files")
elseif(NOT HELP2MAN)
  message(STATUS "help2man not found: no man pages (scripts/install-deps installs it)")
endif()

# Debian puts the copyright notice, the changelog and the documentation of
# a package in /usr/share/doc/<package>. The changelog's date is the build's
# (or SOURCE_DATE_EPOCH for a reproducible build).
set(LUMIDATE_PACKAGE_MAINTAINER "Lumidate developers <packages@lumidate.org>"
    CACHE STRING "Maintainer field of the Debian package")
set(LUMIDATE_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_VERSION_FULL ${PROJECT_VERSION}-${LUMIDATE_PACKAGE_RELEASE})
string(TIMESTAMP changelog_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(changelog ${CMAKE_BINARY_DIR}/package-doc/changelog.Debian)
configure_file(${CMAKE_SOURCE_DIR}/resources/package/changelog.Debian.in ${changelog} @ONLY)
add_custom_command(
  OUTPUT ${changelog}.gz
  COMMAND gzip -9nkf ${changelog}
  DEPENDS ${changelog}
  VERBATIM)
# Everything generated that an install copies besides the programs and the
# desktop resources.
add_custom_target(lumidate_package_files ALL DEPENDS ${changelog}.gz ${man_pages})
install(FILES ${CMAKE_SOURCE_DIR}/README.md ${CMAKE_SOURCE_DIR}/resources/package/copyright ${changelog}.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/lumidate)

# The Debian package. The libraries it needs are found by dpkg-shlibdeps in
# the built programs and their parts, so they are the distribution's own
# package names and versions. Qt loads its platform plugin at run time, so
# no library dependency names it; without it the program cannot start.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lumidate)
set(CPACK_PACKAGE_VENDOR Lumidate)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "show and correct the dates stored in photo files")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${LUMIDATE_PACKAGE_RELEASE})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${LUMIDATE_PACKAGE_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
# Debian 12's libheif1 links its HEVC and AV1 decoders (libde265, dav1d,
# aom) itself, so the libheif1 that dpkg-shlibdeps finds brings them. A
# libheif that loads decoder plugins (1.16 and later) would need
# libheif-plugin-libde265 and libheif-plugin-dav1d named here by hand.
# Qt's own dialog buttons in other languages. The Wayland plugin is left
# out on purpose: the windows are made and tested on X11, which a Wayland
# desktop provides through XWayland.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
# The Japanese texts need a font with Japanese characters.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-ipafont-gothic")
# One string: CPack would join separate arguments with semicolons.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION [=[Lumidate shows the dates a camera stores in photos and corrects them
(when the picture was taken, digitized and last changed; in JPEG, TIFF,
camera RAW, HEIC/HEIF/AVIF, CR3, PNG and WebP files):
type a new date, set one time on many files, or shift many files by years,
months, days, hours, minutes and seconds. Saving rewrites only the date
texts inside each file. It also inspects TIFF, Exif, GPS, JFIF, Photoshop
and IPTC metadata.

The command-line tool lumidate-cli does the same date work in scripts.]=])
include(CPack)
