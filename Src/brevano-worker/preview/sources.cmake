list(APPEND BREVANO_WORKER_SOURCES
    preview/FilmRenderer.cpp
    preview/FilmRenderer.h
    preview/PreviewLoop.cpp
    preview/PreviewLoop.h
    preview/PreviewRing.cpp
    preview/PreviewRing.h
    preview/RenderModules.cpp
    preview/RenderModules.h)
