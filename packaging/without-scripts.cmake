# After CPack: takes the scripts away that it gives every package of shared libraries. All they do is to call ldconfig,
# which the package's trigger lets dpkg do once for all packages together.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  set(folder ${package}-unpacked)
  execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
  if(EXISTS ${folder}/DEBIAN/triggers)
    file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
    execute_process(COMMAND dpkg-deb --root-owner-group --build ${folder} ${package}
      OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  endif()
  file(REMOVE_RECURSE ${folder})
endforeach()
