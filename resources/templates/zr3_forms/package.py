"""Packages: the parts around a sheet, and bytes that never vary.

All templates stand on one base.  Defaults, styles and settings hold for a whole
document, so sheets that are joined into one must agree in them byte for byte.
"""

import io
import zipfile
from datetime import datetime

from docx.opc.constants import CONTENT_TYPE, RELATIONSHIP_TYPE
from docx.opc.package import OpcPackage
from docx.opc.packuri import PackURI
from docx.opc.part import XmlPart
from docx.opc.parts.coreprops import CorePropertiesPart
from docx.oxml.coreprops import CT_CoreProperties

from . import look
from .markup import document_element, element, run_look, spacing, style_id

DATED = datetime(2026, 1, 1)            # a template has no time of its own
ZIP_DATED = (1980, 1, 1, 0, 0, 0)
MAIN_PART = "word/document.xml"
FIRST_ENTRIES = ["[Content_Types].xml", "_rels/.rels", MAIN_PART]


def style_element(style):
    return element(
        "style",
        element("name", val="ZR3 " + style.name),
        element("basedOn", val="Normal"),
        element("qFormat"),
        element("pPr", spacing(style), element("ind", left=style.left, right=style.right),
                element("jc", val=style.align)),
        run_look(style),
        type="paragraph", customStyle="1", styleId=style_id(style))


def styles_element():
    face = look.TYPEFACE
    half_points = 2 * look.ANSWER.size
    return element(
        "styles",
        element("docDefaults",
                element("rPrDefault", element(
                    "rPr",
                    element("rFonts", ascii=face, hAnsi=face, eastAsia=face, cs=face),
                    element("sz", val=half_points), element("szCs", val=half_points),
                    element("lang", val=look.LANGUAGE, eastAsia=look.LANGUAGE, bidi="ar-SA"))),
                element("pPrDefault", element(
                    "pPr", element("widowControl", val="0"),
                    element("spacing", before=0, after=0, line=240, lineRule="auto")))),
        element("style", element("name", val="Normal"), element("qFormat"),
                type="paragraph", default="1", styleId="Normal"),
        element("style", element("name", val="Default Paragraph Font"),
                element("uiPriority", val="1"), element("semiHidden"),
                type="character", default="1", styleId="DefaultParagraphFont"),
        element("style", element("name", val="Normal Table"),
                element("uiPriority", val="99"), element("semiHidden"),
                element("tblPr", element("tblInd", w=0, type="dxa"),
                        element("tblCellMar", *(element(side, w=0, type="dxa")
                                                for side in ("top", "left", "bottom", "right")))),
                type="table", default="1", styleId="TableNormal"),
        *(style_element(style) for style in look.STYLES))


def settings_element():
    return element(
        "settings",
        element("zoom", percent=100),
        element("defaultTabStop", val=720),
        element("characterSpacingControl", val="doNotCompress"),
        element("compat", *(
            element("compatSetting", name=name, uri="http://schemas.microsoft.com/office/word",
                    val=value)
            for name, value in (("compatibilityMode", 15),
                                ("overrideTableStyleFontSizeAndJustification", 1),
                                ("enableOpenTypeFeatures", 1),
                                ("doNotFlipMirrorIndents", 1)))),
        element("decimalSymbol", val="."),
        element("listSeparator", val=","))


def core_properties(package, title):
    part = CorePropertiesPart(PackURI("/docProps/core.xml"), CONTENT_TYPE.OPC_CORE_PROPERTIES,
                              CT_CoreProperties.new(), package)
    properties = part.core_properties
    properties.title = title
    properties.author = "Velmor ZR3"
    properties.language = look.LANGUAGE
    properties.created = properties.modified = DATED
    return part


def package_of(title, lines):
    package = OpcPackage()

    def part(name, content_type, root):
        return XmlPart(PackURI("/word/%s.xml" % name), content_type, root, package)

    document = part("document", CONTENT_TYPE.WML_DOCUMENT_MAIN, document_element(lines))
    document.relate_to(part("styles", CONTENT_TYPE.WML_STYLES, styles_element()),
                       RELATIONSHIP_TYPE.STYLES)
    document.relate_to(part("settings", CONTENT_TYPE.WML_SETTINGS, settings_element()),
                       RELATIONSHIP_TYPE.SETTINGS)
    package.relate_to(document, RELATIONSHIP_TYPE.OFFICE_DOCUMENT)
    package.relate_to(core_properties(package, title), RELATIONSHIP_TYPE.CORE_PROPERTIES)
    return package


def entry_order(name):
    return (FIRST_ENTRIES.index(name) if name in FIRST_ENTRIES else len(FIRST_ENTRIES), name)


def package_bytes(title, lines):
    """The library stamps entries with the time of day and orders them as it
    likes; so its package is packed once more."""
    loose, packed = io.BytesIO(), io.BytesIO()
    package_of(title, lines).save(loose)
    with zipfile.ZipFile(loose) as source, \
            zipfile.ZipFile(packed, "w", zipfile.ZIP_DEFLATED) as target:
        for name in sorted(source.namelist(), key=entry_order):
            entry = zipfile.ZipInfo(name, ZIP_DATED)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 0     # the same on every machine that builds
            target.writestr(entry, source.read(name))
    return packed.getvalue()
