list(APPEND NXVBLENGINE_SOURCES
    relink/NxRelinkJob.cpp
    relink/NxRelinkJob.h
    relink/NxRelinkMatcher.cpp
    relink/NxRelinkMatcher.h
    relink/NxRelinkSearch.cpp
    relink/NxRelinkSearch.h
    relink/NxRelinkWanted.h)
