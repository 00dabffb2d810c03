# Where an installation has its parts, below its folder.
include(GNUInstallDirs)
if(WIN32)
  # The folder of the executable is the program folder. The addresses of the help and of the silence are the text of that
  # folder directly followed by their names, so these stand beside it.
  set(zimbora_installed_executable program)
  set(zimbora_installed_program program)
  set(zimbora_installed_help programkavaro/help)
  set(zimbora_installed_silence_folder .)
  set(zimbora_installed_silence programnull.wav)
else()
  # The program makes each user's program folder from these; see src/state/program_folder.h.
  set(zimbora_installed_executable "${CMAKE_INSTALL_BINDIR}")
  set(zimbora_installed_program share/zimbora)
  set(zimbora_installed_help share/zimbora/help)
  set(zimbora_installed_silence_folder share/zimbora)
  set(zimbora_installed_silence null.wav)
endif()
