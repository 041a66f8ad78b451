// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaRef.h>

#include <QWidget>

#include <memory>

class INxAbstractMedia;
class INxBsThumbManager;
class INxMediaEngine;

/// The picture that stands for one media, from memory; empty until it has come.
class CoverView : public QWidget
{
    Q_OBJECT
public:
    explicit CoverView(QWidget *parent = nullptr);
    ~CoverView() override;

    /// Not owned; null for none. The media may die.
    void setMedia(INxAbstractMedia *media);
    [[nodiscard]] INxAbstractMedia *media() const { return m_media.get(); }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Release
    {
        void operator()(INxBsThumbManager *handle) const;
    };

    [[nodiscard]] INxBsThumbManager *pictures();

    NxMediaRef m_media;
    INxMediaEngine *m_engine = nullptr; // Not owned; whose pictures these are.
    std::unique_ptr<INxBsThumbManager, Release> m_pictures;
};
