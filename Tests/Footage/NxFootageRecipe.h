// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxFootageTruth.h"
#include "NxNumberedFrames.h"

#include <QByteArray>
#include <QStringList>
#include <QVector>

/// A program that does one step towards a file.
struct NxFootageStep
{
    QString program;
    /// In them stand Output for the file that is made, and Scratch for a folder that goes away
    /// when it is made.
    QStringList arguments;

    static const QString Output;
    static const QString Scratch;
};

/// How a file is made, and what is therefore known of it.
struct NxFootageRecipe
{
    QString name; ///< Of the file.
    NxNumberedFrames frames; ///< The first step reads them from its standard input.
    QVector<NxFootageStep> steps;
    QByteArray content; ///< What is written when there are no steps.
    NxFootageTruth truth;
};
