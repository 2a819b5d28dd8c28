# Writes VELOR.CFG into a folder of the installation. Runs during the installation, because only then the prefix is
# known; the path names the place where the database will be used, so the staging folder DESTDIR is not in it.
get_filename_component(prefix "${CMAKE_INSTALL_PREFIX}" ABSOLUTE)
get_filename_component(database "${database_folder}/VELOR.DRC" ABSOLUTE BASE_DIR "${prefix}")
if(database MATCHES ",")
    set(database "\"${database}\"")
endif()
file(WRITE "${binary_folder}/install/VELOR.CFG"
    "Soubor obsahuje na 2.ř. cestu k datovému souboru báze.\r\n${database}\r\n")
get_filename_component(destination "${folder}" ABSOLUTE BASE_DIR "${prefix}")
file(INSTALL "${binary_folder}/install/VELOR.CFG" DESTINATION "${destination}")
