#include "style_sheet.h"

#include "palette.h"

namespace picture
{
namespace
{

constexpr const char* SvgShapes = R"(
svg{min-width:640px;max-width:100%;height:auto}
text{font-family:system-ui,"Segoe UI","Liberation Sans","DejaVu Sans",sans-serif;font-size:14px}
text{font-variant-numeric:tabular-nums}
.title{font-size:24px;font-weight:700}
.heading{font-size:18px;font-weight:700}
.month{font-size:14px;font-weight:700}
.small{font-size:11px}
.middle{text-anchor:middle}
.end{text-anchor:end}
.day{font-size:12px;text-anchor:middle}
.sign{font-weight:700}
.shape{stroke-width:1.5}
.inner{fill:none;stroke-width:1}
.rule{stroke-width:1}
.hatch{fill:url(#hatch);stroke:none}
.hatching{fill:none;stroke-width:1}
.start .day{font-weight:600}
.active .shape{stroke-width:3}
.active .day,.both .day,.synthetic .day{font-weight:700}
.number{font-size:10.5px}
svg .sign{font-size:7.5px}
.shut .shape{stroke-dasharray:4 2.5}
.shut .number{text-decoration:line-through}
.idle-active .shape,.idle-synthetic .shape,.idle-both .shape{stroke-dasharray:0.1 3.2;stroke-linecap:round}
.open .shape,.closed .shape,.open-start .shape,.closed-start .shape{stroke-width:0.75}
@page{margin:10mm}
@media print{svg{min-width:0;width:100%;height:98vh}}
.closed-start .spot,.open-start .spot{fill:none;stroke-width:2.5;stroke-linecap:round}
)";

constexpr const char* HtmlShapes = R"(
*{box-sizing:border-box}
html{color-scheme:light dark;-webkit-text-size-adjust:100%;text-size-adjust:100%}
body{margin:0 auto;max-width:72rem;padding:2rem clamp(1rem,4vw,3rem) 3rem;line-height:1.5}
body{font-family:system-ui,"Segoe UI","Liberation Sans","DejaVu Sans",sans-serif}
h1,p,dd,li{overflow-wrap:anywhere}
h1{font-size:clamp(1.4rem,1rem + 2vw,2rem);line-height:1.2;margin:0 0 .5rem}
h2{font-size:1.25rem;line-height:1.3;margin:2.5rem 0 .75rem;padding-top:1rem;border-top:1px solid}
p{margin:0 0 1rem;max-width:60rem}
dl{display:grid;grid-template-columns:max-content 1fr;gap:.25rem 1.5rem;margin:0}
dd{margin:0}
ul{list-style:none;margin:0 0 1.5rem;padding:0}
table{border-collapse:collapse;border-spacing:0;font-variant-numeric:tabular-nums}
th{font-weight:400;font-size:.8rem}
td,th{padding:0}
.hidden{position:absolute;width:1px;height:1px;margin:-1px;overflow:hidden;clip-path:inset(50%);white-space:nowrap}
.legend{display:grid;grid-template-columns:repeat(auto-fill,minmax(min(19rem,100%),1fr));gap:.4rem 1.5rem}
.hours{grid-template-columns:repeat(auto-fill,minmax(min(13rem,100%),1fr))}
.legend .note{display:block;font-size:.85em}
.legend li{display:grid;grid-template-columns:2.2rem 1fr;gap:.6rem;align-items:center}
.months{display:grid;grid-template-columns:repeat(auto-fill,minmax(min(14.6rem,100%),1fr));gap:1.75rem 2rem}
.months table{table-layout:fixed;width:100%;max-width:22rem;text-align:center;align-self:start}
.months caption{font-weight:700;text-align:left;padding:0 0 .25rem .55rem}
.months td{height:2.25rem;font-size:.9rem}
.clocks{margin-top:1.5rem}
.mark{display:inline-flex;align-items:center;justify-content:center;width:2rem;height:2rem;border:1.5px solid}
.mark{line-height:1;font-size:.8rem;white-space:nowrap}
.sign{font-size:.7em;font-weight:700;margin-left:.08em}
.start,.shut{border-radius:50%}
.start{font-size:.9rem;font-weight:600}
.active,.both{border-width:3px;border-radius:3px;font-weight:700}
.synthetic{border:4px double;border-radius:9px;font-weight:700}
.both{border-width:1.5px;outline:1px solid;outline-offset:-4.5px}
.shut{border-style:dashed}
.shut .number{text-decoration:line-through}
.idle-active,.idle-synthetic,.idle-both{border:2px dotted}
.idle-active,.idle-both{border-radius:3px}
.idle-synthetic{border-radius:9px}
.idle-both{outline:1px dotted;outline-offset:-5px}
.week{table-layout:fixed;width:100%;margin:0 0 1.25rem}
.week thead td{width:6.5rem}
.week th{text-align:left;white-space:nowrap}
.week td{padding:0 1px 2px 0}
.week thead th{padding-bottom:.2rem}
.hour{display:flex;align-items:center;justify-content:center;height:1.6rem;border:1px solid;border-radius:2px}
.open{background-image:repeating-linear-gradient(135deg,currentColor 0 1px,transparent 1px 5px)}
.closed::after{content:"";border:2px solid;border-radius:50%}
.open-start::after{content:"";border:5px solid;border-radius:50%}
.closed-start::after{content:"\D7";font-weight:700;font-size:.9rem;line-height:1}
.legend .hour{width:2.2rem}
.brief{display:none}
@media screen and (max-width:50rem){
.week thead td{width:2.5rem}
.week .full{display:none}
.week .brief{display:inline}
.week thead th:not(:nth-child(6n + 2)) span{visibility:hidden}
.week td{padding:0 0 1px 0}
.hour{border-radius:0;height:1.5rem}
.open-start::after{border-width:3px}
.closed::after{border-width:1px}
.closed-start::after{font-size:.65rem}
.legend .closed::after{border-width:2px}
}
@media screen and (max-width:30rem){
dl{grid-template-columns:1fr;gap:0}
dd{margin:0 0 .5rem}
}
)";

// Printers drop backgrounds, and so do readers who want few colours: there, open hours are lines.
constexpr const char* HtmlPaper = R"(
@page{margin:14mm}
@media print{
body{max-width:none;padding:0;font-size:9.5pt}
h1{font-size:18pt}
h2{font-size:13pt;margin:1.25rem 0 .5rem;padding-top:.75rem}
h1,h2{break-after:avoid}
table,tr,dl,.legend,p{break-inside:avoid}
section[aria-labelledby=window]{break-inside:avoid}
.legend{grid-template-columns:repeat(3,1fr);gap:.3rem 1rem;margin-bottom:1rem;font-size:8.5pt}
.year{grid-template-columns:repeat(4,1fr);gap:.75rem 1.2rem}
.year td{height:1.65rem;font-size:.75rem}
.year .mark{width:1.55rem;height:1.55rem;font-size:.68rem}
.year .start{font-size:.75rem}
}
@media print,(forced-colors:active){
.open{background-image:none;position:relative}
.open::before{content:"";position:absolute;inset:.2rem .1rem;border:solid;border-width:1px 0}
.open::after{content:"";position:absolute;inset:.5rem .1rem;border:solid;border-width:1px 0}
}
)";

std::string svgColours(EScheme scheme)
{
    const auto index = static_cast<std::size_t>(scheme);
    const auto& paper = Papers.at(index);
    const auto rule = [](const std::string& selector, const char* property, const char* colour) {
        return selector + '{' + property + ':' + colour + "}\n";
    };
    auto rules = rule("svg", "background-color", paper.page) + rule(".page", "fill", paper.page) +
                 rule("text", "fill", paper.ink) + rule(".muted", "fill", paper.muted) +
                 rule(".rule", "stroke", paper.rule);
    const auto add = [&](const auto& styles) {
        for (const auto& style : styles)
        {
            const auto selector = '.' + std::string(style.name) + ' ';
            const auto& tint = style.tints.at(index);
            rules += rule(selector + ".shape", "fill", tint.fill) + rule(selector + ".shape", "stroke", tint.line) +
                     rule(selector + ".inner", "stroke", tint.text) + rule(selector + "text", "fill", tint.text) +
                     rule(selector + ".spot", "fill", tint.line) + rule(selector + ".spot", "stroke", tint.line);
        }
    };
    add(DayStyles);
    add(HourStyles);
    return rules;
}

std::string htmlColours(EScheme scheme)
{
    const auto index = static_cast<std::size_t>(scheme);
    const auto& paper = Papers.at(index);
    auto rules = std::string("body{background-color:") + paper.page + ";color:" + paper.ink +
                 "}\n.muted,th,dt{color:" + paper.muted + "}\nh2{border-color:" + paper.rule + "}\n";
    const auto add = [&rules](const char* name, const Tint& tint, const char* colour) {
        rules += std::string(".") + name + "{background-color:" + tint.fill + ";border-color:" + tint.line +
                 ";outline-color:" + tint.text + ";color:" + colour + "}\n";
    };
    for (const auto& style : DayStyles)
        add(style.name, style.tints.at(index), style.tints.at(index).text);
    // Hours hold no text: what is drawn in them is lines.
    for (const auto& style : HourStyles)
        add(style.name, style.tints.at(index), style.tints.at(index).line);
    return rules;
}

template <class TColours>
std::string inEveryScheme(const TColours& colours)
{
    return colours(EScheme::Light) + "@media screen and (prefers-color-scheme:dark){\n" + colours(EScheme::Dark) +
           "}\n@media print{\n" + colours(EScheme::Print) + "}\n";
}

} // namespace

std::string svgStyle()
{
    return SvgShapes + inEveryScheme(svgColours);
}

std::string htmlStyle()
{
    return HtmlShapes + inEveryScheme(htmlColours) + HtmlPaper;
}

} // namespace picture
