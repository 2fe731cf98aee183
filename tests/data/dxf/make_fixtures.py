#!/usr/bin/python3
"""Writes the drawings in versions/, one in each version and form, with python3-ezdxf: the same content, as far as the
version has it. R12 has no LWPOLYLINE and no SPLINE. One is in a code page without Chinese, which is escaped in it."""
import math
import os

import ezdxf
from ezdxf.enums import TextEntityAlignment

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), 'versions')
VERSIONS = ['R12', 'R2000', 'R2004', 'R2007', 'R2010', 'R2013', 'R2018']


def tables(doc):
    doc.layers.add('曲线', color=1, linetype='DASHES')
    doc.linetypes.add('DASHES', [15.0, 10.0, -5.0], description='long dashes')
    style = doc.styles.add('汉字', font='txt.shx')
    style.dxf.bigfont = 'hztxt.shx'
    style.dxf.width = 0.75
    doc.appids.new('GEO')


def block(doc):
    frame = doc.blocks.new('TITLE', base_point=(1, 2))
    frame.add_line((0, 0), (10, 0))
    frame.add_attdef('NAME', (1, 1), '试样', dxfattribs={'height': 2.5, 'prompt': 'Name?'})


def entities(doc, has_r2000_types):
    space = doc.modelspace()
    line = space.add_line((1, 2, 3), (4, 5, 6), dxfattribs={'layer': '曲线', 'color': 3, 'linetype': 'BYBLOCK'})
    line.set_xdata('GEO', [(1000, '固结'), (1002, '{'), (1010, (1, 2, 3)), (1002, '}'), (1040, 2.5), (1070, 7),
                           (1071, 70000)])
    space.add_arc((10, 20), 5, 30, 120)
    space.add_arc((10, 20), 5, 30, 120, dxfattribs={'extrusion': (0, 0, -1)})
    vertices = [(0, 0, 0, 0, 0), (10, 0, 0.5, 1, 1), (10, 10, 0, 0, 0)]
    flat = space.add_polyline2d(vertices, format='xyseb')
    for vertex, (_, _, start, end, bulge) in zip(flat.vertices, vertices):
        vertex.dxf.start_width, vertex.dxf.end_width, vertex.dxf.bulge = start, end, bulge
    flat.close(True)
    if has_r2000_types:
        space.add_lwpolyline(vertices, format='xyseb', close=True)
        space.add_spline([(0, 0), (10, 10), (20, 0), (30, 5)])
        space.add_open_spline([(0, 0), (10, 10), (20, 0), (30, 5), (40, 0)], degree=3)
    space.add_text('三轴 c=20kPa', dxfattribs={'style': '汉字', 'height': 3.5, 'rotation': 45, 'width': 0.8,
                                            'insert': (5, 6)})
    space.add_text('middle', height=2).set_placement((50, 60), align=TextEntityAlignment.MIDDLE_CENTER)
    insert = space.add_blockref('TITLE', (100, 200), dxfattribs={'xscale': 2, 'yscale': 2, 'rotation': 90})
    insert.add_attrib('NAME', 'ZK1-1', (101, 202), dxfattribs={'height': 2.5})
    space.add_circle((0, 0), 1)
    space.add_circle((0, 0), 2)
    space.add_polyline3d([(0, 0, 0), (1, 1, 1)])
    doc.layout('Layout1').add_line((0, 0), (1, 0)) if has_r2000_types else None


def drawing(version, encoding='gbk'):
    doc = ezdxf.new(version)
    doc.encoding = encoding
    doc.header['$LTSCALE'] = 10.0
    doc.header['$INSBASE'] = (7, 8, 0)
    tables(doc)
    block(doc)
    entities(doc, version != 'R12')
    doc.header['$CLAYER'] = '曲线'
    return doc


for name in VERSIONS:
    for form, ending in (('asc', 'text'), ('bin', 'binary')):
        drawing(name).saveas(os.path.join(FOLDER, f'{name.lower()}_{ending}.dxf'), fmt=form)
drawing('R2000', 'cp1252').saveas(os.path.join(FOLDER, 'r2000_western_text.dxf'))
