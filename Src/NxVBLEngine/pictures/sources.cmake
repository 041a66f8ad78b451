list(APPEND NXVBLENGINE_SOURCES
    pictures/NxEngineThumbManager.cpp
    pictures/NxEngineThumbManager.h
    pictures/NxPictureCache.cpp
    pictures/NxPictureCache.h
    pictures/NxPictureKey.h
    pictures/NxPictureService.cpp
    pictures/NxPictureService.h
    pictures/NxPictureThreads.cpp
    pictures/NxPictureThreads.h)
