# The Debian package: `cpack -G DEB` in the folder of a build.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tomely)
set(CPACK_PACKAGE_CONTACT "Tomely developers <developers@tomely.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Folders that only root may write, whatever the umask of whoever builds.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "catalogue of the books you own")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Tomely keeps collections of books, each in one file, with title, author,
publisher, ISBN, prices, dates, loans, notes, cover pictures, fields and groups
of your own. It finds books as you type, fills in a book from its ISBN, prints
lists, and exchanges books as XML and CSV.
.
The program tomely-cli works with the same files in the terminal.")

# Libraries are found in the programs. Nothing in them names the plugins that are loaded while they
# run: those that read WebP and TIFF pictures, those that draw the icons, and the one for Wayland,
# without which Wayland desktops show the windows through X. The plugins for X, for JPEG and for
# printing come with the libraries.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, qt6-image-formats-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "hunspell-dictionary")

include(CPack)
