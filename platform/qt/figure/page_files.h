// Pages as the bytes of files, by the toolkit's own writers: SVG with real letters, PDF with embedded ones, PNG. The program has the
// toolkit anyway, its letters are measured and set by one library, and Cairo would be a second one to build for each system.
#pragma once
#include <QFont>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "platform/page.h"

class QGuiApplication;

class PageFiles : public FontMetrics {
public:
    explicit PageFiles(const std::string& font_family);  // of which the toolkit takes the nearest that is there. One at a time in a process
    ~PageFiles() override;
    PageFiles(const PageFiles&) = delete;
    PageFiles& operator=(const PageFiles&) = delete;

    double WidthOf(const std::string& text, const Lettering& letters) const override;
    std::string Svg(const Page& page, const std::string& title) const;
    std::string Pdf(const std::vector<Page>& pages, const std::string& title) const;  // one page at least
    std::string Png(const Page& page, int dots_per_inch) const;                       // empty if the picture would be too large

private:
    QFont FontOf(const Lettering& letters) const;

    char name_[17] = "marlbrook-figure";
    char* arguments_[2] = {name_, nullptr};
    int argument_count_ = 1;
    std::unique_ptr<QGuiApplication> application_;  // keeps what stands before it
    QStringList families_;
};
