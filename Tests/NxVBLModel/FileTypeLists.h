// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// @file
/// What users may import, written down a second time: a test compares, suffix by suffix.

constexpr const char *VideoPatterns =
    "*.MP4;*.FLV;*.AVI;*.VOB;*.3GP;*.ASF;*.MOV;*.F4V;*.M4V;*.M2V;*.MPG;*.WEBM;*.MPEG;*.DPG;*.TS;"
    "*.TRP;*.M2TS;*.MTS;*.DAT;*.WMV;*.MKV;*.DVR-MS;*.DV;*.TOD;*.EVO;*.OGV;*.VRO;*.GIF;*.MOD;"
    "*.MXF;*.M2T;*.M1V;*.LRV";
constexpr const char *ImagePatterns =
    "*.BMP;*.JPG;*.PNG;*.TIF;*.ICO;*.DIB;*.JPEG;*.JPE;*.JFIF;*.TIFF;*.EMF;*.DNG;*.HEIF;*.HEIC;"
    "*.WEBP;*.DNG";
constexpr const char *AudioPatterns =
    "*.AAC;*.AC3;*.AIF;*.AIFF;*.AU;*.FLAC;*.M4A;*.MKA;*.MP2;*.MP3;*.OGG;*.WAV;*.WMA;*.CAF;*.CUE";
constexpr const char *SubtitlePatterns = "*.SRT;*.LRC;";
constexpr const char *UnsupportedPatterns =
    "*.PDF;*.DOCX;*.EXE;*.WFP;*.XML;*.ZIP;*.LNK;*.PPTX;*.DOWNLOAD;*.XLSX;*.HTML;*.TXT;*.CSS;"
    "*.JSON;*.DLL;*.URL;*.CRDOWNLOAD;*.DOC;*.RAR;*.TTF;*.DESCARGA;*.CONF;*.PSD;*.IFO;*.DAT;*.HTM;"
    "*.SFK;*.BUP;*.CR3;*.XLS;*.APK;*.CUBE;*.EXR;*.AI;*.JAR;*.PPT;*.CSV;*.ODT;*.OTF;*.INI;*.JS;"
    "*.AUP3;*.LOG;*.PART;*.TORRENT;*.EDDX;*.EMMX";
