if(WIN32)
    set(nx_disk_system win)
else()
    set(nx_disk_system unix)
endif()
list(APPEND NXVBLENGINE_SOURCES
    disk/NxDirectoryReader.cpp
    disk/NxDirectoryReader.h
    disk/NxDirectoryReader_${nx_disk_system}.cpp
    disk/NxDiskThread.cpp
    disk/NxDiskThread.h
    disk/NxFileProbe.cpp
    disk/NxFileProbe.h
    disk/NxFileProbe_${nx_disk_system}.cpp
    disk/NxPresenceCheck.cpp
    disk/NxPresenceCheck.h
    disk/NxPresenceKeeper.cpp
    disk/NxPresenceKeeper.h
    disk/NxWatchedFolders.cpp
    disk/NxWatchedFolders.h)
