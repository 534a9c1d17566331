// A printed page on a desk under uneven light, with the noise of a camera's sensor.
#pragma once

#include "tests/plugins/content.h"

class PageContent : public Content
{
public:
    int variant(const Moment &moment) const override;
    void draw(Picture *picture, const Moment &moment) override;

private:
    void drawPage(Picture *picture);

    std::unique_ptr<Picture> m_page; // without noise, drawn once
};
