<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>AppActions</name>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Open &amp;Recent</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>&amp;Small</source>
        <translation>&amp;Small</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>&amp;Medium</translation>
    </message>
    <message>
        <source>&amp;Large</source>
        <translation>&amp;Large</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>Show Information</translation>
    </message>
    <message>
        <source>Image Viewer</source>
        <translation>Image Viewer</translation>
    </message>
    <message>
        <source>Day Count Calculator</source>
        <translation>Day Count Calculator</translation>
    </message>
    <message>
        <source>&amp;About Lumidate</source>
        <translation>&amp;About Lumidate</translation>
    </message>
</context>
<context>
    <name>ChangeByIntervalSheet</name>
    <message>
        <source>Change by Interval</source>
        <translation>Change by Interval</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
</context>
<context>
    <name>ChangeControls</name>
    <message>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
</context>
<context>
    <name>DatePickerStepper</name>
    <message>
        <source>Stepper</source>
        <translation>Stepper</translation>
    </message>
    <message>
        <source>Step Up</source>
        <translation>Step Up</translation>
    </message>
    <message>
        <source>Step Down</source>
        <translation>Step Down</translation>
    </message>
</context>
<context>
    <name>DatePickerWidget</name>
    <message>
        <source>Year</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>Millisecond</translation>
    </message>
</context>
<context>
    <name>DayCalculatorWindow</name>
    <message>
        <source>First date:</source>
        <translation>First date:</translation>
    </message>
    <message>
        <source>First date</source>
        <translation>First date</translation>
    </message>
    <message>
        <source>Second date:</source>
        <translation>Second date:</translation>
    </message>
    <message>
        <source>Second date</source>
        <translation>Second date</translation>
    </message>
</context>
<context>
    <name>IFD</name>
    <message>
        <source>Byte Order</source>
        <translation>Byte Order</translation>
    </message>
    <message>
        <source>New Subfile Type</source>
        <translation>New Subfile Type</translation>
    </message>
    <message>
        <source>Subfile Type</source>
        <translation>Subfile Type</translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation>Image Width</translation>
    </message>
    <message>
        <source>Image Length</source>
        <translation>Image Length</translation>
    </message>
    <message>
        <source>Bits per Sample</source>
        <translation>Bits per Sample</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Photometric Interpretation</source>
        <translation>Photometric Interpretation</translation>
    </message>
    <message>
        <source>Threshholding</source>
        <translation>Threshholding</translation>
    </message>
    <message>
        <source>Cell Width</source>
        <translation>Cell Width</translation>
    </message>
    <message>
        <source>Cell Length</source>
        <translation>Cell Length</translation>
    </message>
    <message>
        <source>Fill Order</source>
        <translation>Fill Order</translation>
    </message>
    <message>
        <source>Document Name</source>
        <translation>Document Name</translation>
    </message>
    <message>
        <source>Image Description</source>
        <translation>Image Description</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Make</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Strip Offsets</source>
        <translation>Strip Offsets</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Samples per Pixel</source>
        <translation>Samples per Pixel</translation>
    </message>
    <message>
        <source>Rows per Strip</source>
        <translation>Rows per Strip</translation>
    </message>
    <message>
        <source>Strip Byte Counts</source>
        <translation>Strip Byte Counts</translation>
    </message>
    <message>
        <source>Min Sample Value</source>
        <translation>Min Sample Value</translation>
    </message>
    <message>
        <source>Max Sample Value</source>
        <translation>Max Sample Value</translation>
    </message>
    <message>
        <source>X Resolution</source>
        <translation>X Resolution</translation>
    </message>
    <message>
        <source>Y Resolution</source>
        <translation>Y Resolution</translation>
    </message>
    <message>
        <source>Planar Configuration</source>
        <translation>Planar Configuration</translation>
    </message>
    <message>
        <source>Page Name</source>
        <translation>Page Name</translation>
    </message>
    <message>
        <source>X Position</source>
        <translation>X Position</translation>
    </message>
    <message>
        <source>Y Position</source>
        <translation>Y Position</translation>
    </message>
    <message>
        <source>Free Offsets</source>
        <translation>Free Offsets</translation>
    </message>
    <message>
        <source>Free ByteCounts</source>
        <translation>Free ByteCounts</translation>
    </message>
    <message>
        <source>Gray ResponseUnit</source>
        <translation>Gray ResponseUnit</translation>
    </message>
    <message>
        <source>Gray ResponseCurve</source>
        <translation>Gray ResponseCurve</translation>
    </message>
    <message>
        <source>T4 Options</source>
        <translation>T4 Options</translation>
    </message>
    <message>
        <source>T6 Options</source>
        <translation>T6 Options</translation>
    </message>
    <message>
        <source>Resolution Unit</source>
        <translation>Resolution Unit</translation>
    </message>
    <message>
        <source>Page Number</source>
        <translation>Page Number</translation>
    </message>
    <message>
        <source>Transfer Function</source>
        <translation>Transfer Function</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Date Time</source>
        <translation>Date Time</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artist</translation>
    </message>
    <message>
        <source>Host Computer</source>
        <translation>Host Computer</translation>
    </message>
    <message>
        <source>Predictor</source>
        <translation>Predictor</translation>
    </message>
    <message>
        <source>White Point</source>
        <translation>White Point</translation>
    </message>
    <message>
        <source>Primary Chromaticities</source>
        <translation>Primary Chromaticities</translation>
    </message>
    <message>
        <source>Color Map</source>
        <translation>Color Map</translation>
    </message>
    <message>
        <source>Halftone Hints</source>
        <translation>Halftone Hints</translation>
    </message>
    <message>
        <source>Tile Width</source>
        <translation>Tile Width</translation>
    </message>
    <message>
        <source>Tile Length</source>
        <translation>Tile Length</translation>
    </message>
    <message>
        <source>Tile Offsets</source>
        <translation>Tile Offsets</translation>
    </message>
    <message>
        <source>Tile Byte Counts</source>
        <translation>Tile Byte Counts</translation>
    </message>
    <message>
        <source>Ink Set</source>
        <translation>Ink Set</translation>
    </message>
    <message>
        <source>Ink Names</source>
        <translation>Ink Names</translation>
    </message>
    <message>
        <source>Number of Inks</source>
        <translation>Number of Inks</translation>
    </message>
    <message>
        <source>Dot Range</source>
        <translation>Dot Range</translation>
    </message>
    <message>
        <source>Target Printer</source>
        <translation>Target Printer</translation>
    </message>
    <message>
        <source>Extra Samples</source>
        <translation>Extra Samples</translation>
    </message>
    <message>
        <source>Sample Format</source>
        <translation>Sample Format</translation>
    </message>
    <message>
        <source>S Min Sample Value</source>
        <translation>S Min Sample Value</translation>
    </message>
    <message>
        <source>S Max Sample Value</source>
        <translation>S Max Sample Value</translation>
    </message>
    <message>
        <source>Transfer Range</source>
        <translation>Transfer Range</translation>
    </message>
    <message>
        <source>JPEG Proc</source>
        <translation>JPEG Proc</translation>
    </message>
    <message>
        <source>JPEG Interchange Format</source>
        <translation>JPEG Interchange Format</translation>
    </message>
    <message>
        <source>JPEG Interchange Format Lngth</source>
        <translation>JPEG Interchange Format Lngth</translation>
    </message>
    <message>
        <source>JPEG Restart Interval</source>
        <translation>JPEG Restart Interval</translation>
    </message>
    <message>
        <source>JPEG Lossless Predictors</source>
        <translation>JPEG Lossless Predictors</translation>
    </message>
    <message>
        <source>JPEG Point Transforms</source>
        <translation>JPEG Point Transforms</translation>
    </message>
    <message>
        <source>JPEG Q Tables</source>
        <translation>JPEG Q Tables</translation>
    </message>
    <message>
        <source>JPEG DC Tables</source>
        <translation>JPEG DC Tables</translation>
    </message>
    <message>
        <source>JPEG AC Tables</source>
        <translation>JPEG AC Tables</translation>
    </message>
    <message>
        <source>YCbCr Coefficients</source>
        <translation>YCbCr Coefficients</translation>
    </message>
    <message>
        <source>YCbCr SubSampling</source>
        <translation>YCbCr SubSampling</translation>
    </message>
    <message>
        <source>YCbCr Positioning</source>
        <translation>YCbCr Positioning</translation>
    </message>
    <message>
        <source>Reference Black White</source>
        <translation>Reference Black White</translation>
    </message>
    <message>
        <source>Strip Row Counts</source>
        <translation>Strip Row Counts</translation>
    </message>
    <message>
        <source>XMP Data</source>
        <translation>XMP Data</translation>
    </message>
    <message>
        <source>Image ID</source>
        <translation>Image ID</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>IPTC IIM</source>
        <translation>IPTC IIM</translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation>Photoshop</translation>
    </message>
    <message>
        <source>Exif</source>
        <translation>Exif</translation>
    </message>
    <message>
        <source>ICC Profile</source>
        <translation>ICC Profile</translation>
    </message>
    <message>
        <source>Image Layer</source>
        <translation>Image Layer</translation>
    </message>
    <message>
        <source>GPS</source>
        <translation>GPS</translation>
    </message>
    <message>
        <source>Time Zone Offset</source>
        <translation>Time Zone Offset</translation>
    </message>
    <message>
        <source>TIFF/EP StandardID</source>
        <translation>TIFF/EP StandardID</translation>
    </message>
    <message>
        <source>Image Source Data</source>
        <translation>Image Source Data</translation>
    </message>
    <message>
        <source>Print Image Matching</source>
        <translation>Print Image Matching</translation>
    </message>
    <message>
        <source>Maker Note Safety</source>
        <translation>Maker Note Safety</translation>
    </message>
    <message>
        <source>Unknown2 0xC6D2</source>
        <translation>Unknown2 0xC6D2</translation>
    </message>
    <message>
        <source>Unknown3 0xC6D3</source>
        <translation>Unknown3 0xC6D3</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>Exposure Time</translation>
    </message>
    <message>
        <source>F Number</source>
        <translation>F Number</translation>
    </message>
    <message>
        <source>Exposure Program</source>
        <translation>Exposure Program</translation>
    </message>
    <message>
        <source>Spectral Sensitivity</source>
        <translation>Spectral Sensitivity</translation>
    </message>
    <message>
        <source>ISO Speed Ratings</source>
        <translation>ISO Speed Ratings</translation>
    </message>
    <message>
        <source>OECF</source>
        <translation>OECF</translation>
    </message>
    <message>
        <source>Self Timer Mode</source>
        <translation>Self Timer Mode</translation>
    </message>
    <message>
        <source>Sensitivity Type</source>
        <translation>Sensitivity Type</translation>
    </message>
    <message>
        <source>SOS (Standard Output Sensitivity)</source>
        <translation>SOS (Standard Output Sensitivity)</translation>
    </message>
    <message>
        <source>REI (Recommended Exposure Index)</source>
        <translation>REI (Recommended Exposure Index)</translation>
    </message>
    <message>
        <source>ISO Speed</source>
        <translation>ISO Speed</translation>
    </message>
    <message>
        <source>ISO Speed Latitude yyy</source>
        <translation>ISO Speed Latitude yyy</translation>
    </message>
    <message>
        <source>ISO Speed Latitude zzz</source>
        <translation>ISO Speed Latitude zzz</translation>
    </message>
    <message>
        <source>Exif Version</source>
        <translation>Exif Version</translation>
    </message>
    <message>
        <source>Date Time Original</source>
        <translation>Date Time Original</translation>
    </message>
    <message>
        <source>Date Time Digitized</source>
        <translation>Date Time Digitized</translation>
    </message>
    <message>
        <source>Google Plus Upload Code</source>
        <translation>Google Plus Upload Code</translation>
    </message>
    <message>
        <source>Offset Time</source>
        <translation>Offset Time</translation>
    </message>
    <message>
        <source>Offset Time Original</source>
        <translation>Offset Time Original</translation>
    </message>
    <message>
        <source>Offset Time Digitized</source>
        <translation>Offset Time Digitized</translation>
    </message>
    <message>
        <source>Components Configuration</source>
        <translation>Components Configuration</translation>
    </message>
    <message>
        <source>Compressed Bits per Pixel</source>
        <translation>Compressed Bits per Pixel</translation>
    </message>
    <message>
        <source>Shutter Speed Value</source>
        <translation>Shutter Speed Value</translation>
    </message>
    <message>
        <source>Aperture Value</source>
        <translation>Aperture Value</translation>
    </message>
    <message>
        <source>Brightness Value</source>
        <translation>Brightness Value</translation>
    </message>
    <message>
        <source>Exposure Bias Value</source>
        <translation>Exposure Bias Value</translation>
    </message>
    <message>
        <source>Max Aperture Value</source>
        <translation>Max Aperture Value</translation>
    </message>
    <message>
        <source>Subject Distance</source>
        <translation>Subject Distance</translation>
    </message>
    <message>
        <source>Metering Mode</source>
        <translation>Metering Mode</translation>
    </message>
    <message>
        <source>Light Source</source>
        <translation>Light Source</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Focal Length</source>
        <translation>Focal Length</translation>
    </message>
    <message>
        <source>Subject Area</source>
        <translation>Subject Area</translation>
    </message>
    <message>
        <source>Maker Note</source>
        <translation>Maker Note</translation>
    </message>
    <message>
        <source>User Comment</source>
        <translation>User Comment</translation>
    </message>
    <message>
        <source>Subsecond Time</source>
        <translation>Subsecond Time</translation>
    </message>
    <message>
        <source>Subsecond Time Original</source>
        <translation>Subsecond Time Original</translation>
    </message>
    <message>
        <source>Subsecond Time Digitized</source>
        <translation>Subsecond Time Digitized</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>Humidity</source>
        <translation>Humidity</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressure</translation>
    </message>
    <message>
        <source>Water Depth</source>
        <translation>Water Depth</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Acceleration</translation>
    </message>
    <message>
        <source>Camera Elevation Angle</source>
        <translation>Camera Elevation Angle</translation>
    </message>
    <message>
        <source>Flashpix Version</source>
        <translation>Flashpix Version</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Color Space</translation>
    </message>
    <message>
        <source>Pixel X Dimension</source>
        <translation>Pixel X Dimension</translation>
    </message>
    <message>
        <source>Pixel Y Dimension</source>
        <translation>Pixel Y Dimension</translation>
    </message>
    <message>
        <source>Related Sound File</source>
        <translation>Related Sound File</translation>
    </message>
    <message>
        <source>DCF Interoperability Data</source>
        <translation>DCF Interoperability Data</translation>
    </message>
    <message>
        <source>Flash Energy</source>
        <translation>Flash Energy</translation>
    </message>
    <message>
        <source>Spatial Frequency Response</source>
        <translation>Spatial Frequency Response</translation>
    </message>
    <message>
        <source>Focal Plane X Resolution</source>
        <translation>Focal Plane X Resolution</translation>
    </message>
    <message>
        <source>Focal Plane Y Resolution</source>
        <translation>Focal Plane Y Resolution</translation>
    </message>
    <message>
        <source>Focal Plane Resolution Unit</source>
        <translation>Focal Plane Resolution Unit</translation>
    </message>
    <message>
        <source>Subject Location</source>
        <translation>Subject Location</translation>
    </message>
    <message>
        <source>Exposure Index</source>
        <translation>Exposure Index</translation>
    </message>
    <message>
        <source>Sensing Method</source>
        <translation>Sensing Method</translation>
    </message>
    <message>
        <source>File Source</source>
        <translation>File Source</translation>
    </message>
    <message>
        <source>Scene Type</source>
        <translation>Scene Type</translation>
    </message>
    <message>
        <source>CFA Pattern</source>
        <translation>CFA Pattern</translation>
    </message>
    <message>
        <source>Custom Rendered</source>
        <translation>Custom Rendered</translation>
    </message>
    <message>
        <source>Exposure Mode</source>
        <translation>Exposure Mode</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>White Balance</translation>
    </message>
    <message>
        <source>Digital Zoom Ratio</source>
        <translation>Digital Zoom Ratio</translation>
    </message>
    <message>
        <source>Focal Length in 35mm Film</source>
        <translation>Focal Length in 35mm Film</translation>
    </message>
    <message>
        <source>Scene Capture Type</source>
        <translation>Scene Capture Type</translation>
    </message>
    <message>
        <source>Gain Control</source>
        <translation>Gain Control</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>Device Setting Description</source>
        <translation>Device Setting Description</translation>
    </message>
    <message>
        <source>Subject Distance Range</source>
        <translation>Subject Distance Range</translation>
    </message>
    <message>
        <source>Image Unique ID</source>
        <translation>Image Unique ID</translation>
    </message>
    <message>
        <source>Camera Owner Name</source>
        <translation>Camera Owner Name</translation>
    </message>
    <message>
        <source>Body Serial Number</source>
        <translation>Body Serial Number</translation>
    </message>
    <message>
        <source>Lens Specification</source>
        <translation>Lens Specification</translation>
    </message>
    <message>
        <source>Lens Make</source>
        <translation>Lens Make</translation>
    </message>
    <message>
        <source>Lens Model</source>
        <translation>Lens Model</translation>
    </message>
    <message>
        <source>Lens Serial Number</source>
        <translation>Lens Serial Number</translation>
    </message>
    <message>
        <source>Image Title</source>
        <translation>Image Title</translation>
    </message>
    <message>
        <source>Photographer</source>
        <translation>Photographer</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>Image Editor</translation>
    </message>
    <message>
        <source>Camera Firmware</source>
        <translation>Camera Firmware</translation>
    </message>
    <message>
        <source>RAW Developing Software</source>
        <translation>RAW Developing Software</translation>
    </message>
    <message>
        <source>Image Editing Software</source>
        <translation>Image Editing Software</translation>
    </message>
    <message>
        <source>Metadata Editing Software</source>
        <translation>Metadata Editing Software</translation>
    </message>
    <message>
        <source>Composite Image</source>
        <translation>Composite Image</translation>
    </message>
    <message>
        <source>Source Image Number of Composite Image</source>
        <translation>Source Image Number of Composite Image</translation>
    </message>
    <message>
        <source>Source Exposure Times of Composite Image</source>
        <translation>Source Exposure Times of Composite Image</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Interoperability Index</source>
        <translation>Interoperability Index</translation>
    </message>
    <message>
        <source>Interoperability Version</source>
        <translation>Interoperability Version</translation>
    </message>
    <message>
        <source>Related Image File Format</source>
        <translation>Related Image File Format</translation>
    </message>
    <message>
        <source>Related Image Width</source>
        <translation>Related Image Width</translation>
    </message>
    <message>
        <source>Related Image Length</source>
        <translation>Related Image Length</translation>
    </message>
    <message>
        <source>GPS Version</source>
        <translation>GPS Version</translation>
    </message>
    <message>
        <source>GPS Latitude Reference</source>
        <translation>GPS Latitude Reference</translation>
    </message>
    <message>
        <source>GPS Latitude</source>
        <translation>GPS Latitude</translation>
    </message>
    <message>
        <source>GPS Longitude Reference</source>
        <translation>GPS Longitude Reference</translation>
    </message>
    <message>
        <source>GPS Longitude</source>
        <translation>GPS Longitude</translation>
    </message>
    <message>
        <source>GPS Altitude Reference</source>
        <translation>GPS Altitude Reference</translation>
    </message>
    <message>
        <source>GPS Altitude</source>
        <translation>GPS Altitude</translation>
    </message>
    <message>
        <source>GPS Time Stamp</source>
        <translation>GPS Time Stamp</translation>
    </message>
    <message>
        <source>GPS Satellites</source>
        <translation>GPS Satellites</translation>
    </message>
    <message>
        <source>GPS Status</source>
        <translation>GPS Status</translation>
    </message>
    <message>
        <source>GPS Measure Mode</source>
        <translation>GPS Measure Mode</translation>
    </message>
    <message>
        <source>GPS DOP</source>
        <translation>GPS DOP</translation>
    </message>
    <message>
        <source>GPS Speed Reference</source>
        <translation>GPS Speed Reference</translation>
    </message>
    <message>
        <source>GPS Speed</source>
        <translation>GPS Speed</translation>
    </message>
    <message>
        <source>GPS Track Reference</source>
        <translation>GPS Track Reference</translation>
    </message>
    <message>
        <source>GPS Track</source>
        <translation>GPS Track</translation>
    </message>
    <message>
        <source>GPS Image Direction Reference</source>
        <translation>GPS Image Direction Reference</translation>
    </message>
    <message>
        <source>GPS Image Direction</source>
        <translation>GPS Image Direction</translation>
    </message>
    <message>
        <source>GPS Map Datum</source>
        <translation>GPS Map Datum</translation>
    </message>
    <message>
        <source>GPS Destination Latitude Reference</source>
        <translation>GPS Destination Latitude Reference</translation>
    </message>
    <message>
        <source>GPS Destination Latitude</source>
        <translation>GPS Destination Latitude</translation>
    </message>
    <message>
        <source>GPS Destination Longitude Reference</source>
        <translation>GPS Destination Longitude Reference</translation>
    </message>
    <message>
        <source>GPS Destination Longitude</source>
        <translation>GPS Destination Longitude</translation>
    </message>
    <message>
        <source>GPS Destination Bearing Reference</source>
        <translation>GPS Destination Bearing Reference</translation>
    </message>
    <message>
        <source>GPS Destination Bearing</source>
        <translation>GPS Destination Bearing</translation>
    </message>
    <message>
        <source>GPS Destination Distance Reference</source>
        <translation>GPS Destination Distance Reference</translation>
    </message>
    <message>
        <source>GPS Destination Distance</source>
        <translation>GPS Destination Distance</translation>
    </message>
    <message>
        <source>GPS Processing Method</source>
        <translation>GPS Processing Method</translation>
    </message>
    <message>
        <source>GPS Area Information</source>
        <translation>GPS Area Information</translation>
    </message>
    <message>
        <source>GPS Date Stamp</source>
        <translation>GPS Date Stamp</translation>
    </message>
    <message>
        <source>GPS Differential</source>
        <translation>GPS Differential</translation>
    </message>
    <message>
        <source>GPS HPositioning Error</source>
        <translation>GPS HPositioning Error</translation>
    </message>
    <message>
        <source>Uncompressed</source>
        <translation>Uncompressed</translation>
    </message>
    <message>
        <source>LZW</source>
        <translation>LZW</translation>
    </message>
    <message>
        <source>JPEG Compression</source>
        <translation>JPEG Compression</translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation>NEXT</translation>
    </message>
    <message>
        <source>PackBits</source>
        <translation>PackBits</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Palette Color</source>
        <translation>Palette Color</translation>
    </message>
    <message>
        <source>Transparency Mask</source>
        <translation>Transparency Mask</translation>
    </message>
    <message>
        <source>CMYK</source>
        <translation>CMYK</translation>
    </message>
    <message>
        <source>YCbCr</source>
        <translation>YCbCr</translation>
    </message>
    <message>
        <source>Lab</source>
        <translation>Lab</translation>
    </message>
    <message>
        <source>1 Top-Left</source>
        <translation>1 Top-Left</translation>
    </message>
    <message>
        <source>2 Top-Right</source>
        <translation>2 Top-Right</translation>
    </message>
    <message>
        <source>3 Bottom-Right</source>
        <translation>3 Bottom-Right</translation>
    </message>
    <message>
        <source>4 Bottom-Left</source>
        <translation>4 Bottom-Left</translation>
    </message>
    <message>
        <source>5 Left-Top</source>
        <translation>5 Left-Top</translation>
    </message>
    <message>
        <source>6 Right-Top</source>
        <translation>6 Right-Top</translation>
    </message>
    <message>
        <source>7 Right-Bottom</source>
        <translation>7 Right-Bottom</translation>
    </message>
    <message>
        <source>8 Left-Bottom</source>
        <translation>8 Left-Bottom</translation>
    </message>
    <message>
        <source>Chunky Format</source>
        <translation>Chunky Format</translation>
    </message>
    <message>
        <source>Planar Format</source>
        <translation>Planar Format</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>inches</translation>
    </message>
    <message>
        <source>centimeters</source>
        <translation>centimeters</translation>
    </message>
    <message>
        <source>Non</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Horizontal differencing</source>
        <translation>Horizontal differencing</translation>
    </message>
    <message>
        <source>Floating point horizontal differencing</source>
        <translation>Floating point horizontal differencing</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>Centered</translation>
    </message>
    <message>
        <source>Co-sited</source>
        <translation>Co-sited</translation>
    </message>
    <message>
        <source>Unsafe</source>
        <translation>Unsafe</translation>
    </message>
    <message>
        <source>Safe</source>
        <translation>Safe</translation>
    </message>
    <message>
        <source>Not Defined</source>
        <translation>Not Defined</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Normal Program</source>
        <translation>Normal Program</translation>
    </message>
    <message>
        <source>Aperture Priority</source>
        <translation>Aperture Priority</translation>
    </message>
    <message>
        <source>Shutter Priority</source>
        <translation>Shutter Priority</translation>
    </message>
    <message>
        <source>Creative Program</source>
        <translation>Creative Program</translation>
    </message>
    <message>
        <source>Action Program</source>
        <translation>Action Program</translation>
    </message>
    <message>
        <source>Portrait Mode</source>
        <translation>Portrait Mode</translation>
    </message>
    <message>
        <source>Landscape Mode</source>
        <translation>Landscape Mode</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>SOS and REI</source>
        <translation>SOS and REI</translation>
    </message>
    <message>
        <source>SOS and ISO Speed</source>
        <translation>SOS and ISO Speed</translation>
    </message>
    <message>
        <source>REI and ISO Speed</source>
        <translation>REI and ISO Speed</translation>
    </message>
    <message>
        <source>SOS, REI and ISO Speed</source>
        <translation>SOS, REI and ISO Speed</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Average</translation>
    </message>
    <message>
        <source>Center Weighted Average</source>
        <translation>Center Weighted Average</translation>
    </message>
    <message>
        <source>Spot</source>
        <translation>Spot</translation>
    </message>
    <message>
        <source>Multi-Spot</source>
        <translation>Multi-Spot</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Pattern</translation>
    </message>
    <message>
        <source>Partial</source>
        <translation>Partial</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Daylight</source>
        <translation>Daylight</translation>
    </message>
    <message>
        <source>Fluorescent</source>
        <translation>Fluorescent</translation>
    </message>
    <message>
        <source>Tungsten</source>
        <translation>Tungsten</translation>
    </message>
    <message>
        <source>Fine Weather</source>
        <translation>Fine Weather</translation>
    </message>
    <message>
        <source>Cloudy Weather</source>
        <translation>Cloudy Weather</translation>
    </message>
    <message>
        <source>Shade</source>
        <translation>Shade</translation>
    </message>
    <message>
        <source>Daylight Fluorescent</source>
        <translation>Daylight Fluorescent</translation>
    </message>
    <message>
        <source>Standard Light A</source>
        <translation>Standard Light A</translation>
    </message>
    <message>
        <source>Standard Light B</source>
        <translation>Standard Light B</translation>
    </message>
    <message>
        <source>Standard Light C</source>
        <translation>Standard Light C</translation>
    </message>
    <message>
        <source>D55</source>
        <translation>D55</translation>
    </message>
    <message>
        <source>D65</source>
        <translation>D65</translation>
    </message>
    <message>
        <source>D75</source>
        <translation>D75</translation>
    </message>
    <message>
        <source>D50</source>
        <translation>D50</translation>
    </message>
    <message>
        <source>ISO Studio Tungsten</source>
        <translation>ISO Studio Tungsten</translation>
    </message>
    <message>
        <source>Other Light Source</source>
        <translation>Other Light Source</translation>
    </message>
    <message>
        <source>Day White Fluorescent</source>
        <translation>Day White Fluorescent</translation>
    </message>
    <message>
        <source>Cool White Fluorescent</source>
        <translation>Cool White Fluorescent</translation>
    </message>
    <message>
        <source>White Fluorescent</source>
        <translation>White Fluorescent</translation>
    </message>
    <message>
        <source>Day White Fluorescent 0230</source>
        <translation>Day White Fluorescent 0230</translation>
    </message>
    <message>
        <source>Cool White Fluorescent 0230</source>
        <translation>Cool White Fluorescent 0230</translation>
    </message>
    <message>
        <source>White Fluorescent 0230</source>
        <translation>White Fluorescent 0230</translation>
    </message>
    <message>
        <source>Warm White Fluorescent</source>
        <translation>Warm White Fluorescent</translation>
    </message>
    <message>
        <source>Did not Fire</source>
        <translation>Did not Fire</translation>
    </message>
    <message>
        <source>Fired</source>
        <translation>Fired</translation>
    </message>
    <message>
        <source>Fired, Return Light not Detected</source>
        <translation>Fired, Return Light not Detected</translation>
    </message>
    <message>
        <source>Fired, Return Light Detected</source>
        <translation>Fired, Return Light Detected</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode</source>
        <translation>Fired, Compulsory Flash Mode</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Return Light not Detected</source>
        <translation>Fired, Compulsory Flash Mode, Return Light not Detected</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Return Light Detected</source>
        <translation>Fired, Compulsory Flash Mode, Return Light Detected</translation>
    </message>
    <message>
        <source>Did not Fire, Compulsory Flash Suppression Mode</source>
        <translation>Did not Fire, Compulsory Flash Suppression Mode</translation>
    </message>
    <message>
        <source>Did not Fire, Auto Mode</source>
        <translation>Did not Fire, Auto Mode</translation>
    </message>
    <message>
        <source>Fired, Auto Mode</source>
        <translation>Fired, Auto Mode</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light not Detected</source>
        <translation>Fired, Auto Mode, Return Light not Detected</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light Detected</source>
        <translation>Fired, Auto Mode, Return Light Detected</translation>
    </message>
    <message>
        <source>No Flash Function</source>
        <translation>No Flash Function</translation>
    </message>
    <message>
        <source>Fired, Red-eye Reduction Mode</source>
        <translation>Fired, Red-eye Reduction Mode</translation>
    </message>
    <message>
        <source>Fired, Red-eye Reduction Mode, Return Light not Detected</source>
        <translation>Fired, Red-eye Reduction Mode, Return Light not Detected</translation>
    </message>
    <message>
        <source>Fired, Red-eye Reduction Mode, Return Light Detected</source>
        <translation>Fired, Red-eye Reduction Mode, Return Light Detected</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Red-eye Reduction Mode</source>
        <translation>Fired, Compulsory Flash Mode, Red-eye Reduction Mode</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light not Detected</source>
        <translation>Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light not Detected</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light Detected</source>
        <translation>Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light Detected</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Red-eye Reduction Mode</source>
        <translation>Fired, Auto Mode, Red-eye Reduction Mode</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light not Detected, Red-eye Reduction Mode</source>
        <translation>Fired, Auto Mode, Return Light not Detected, Red-eye Reduction Mode</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light Detected, Red-eye Reduction Mode</source>
        <translation>Fired, Auto Mode, Return Light Detected, Red-eye Reduction Mode</translation>
    </message>
    <message>
        <source>sRGB</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>Uncalibrated</source>
        <translation>Uncalibrated</translation>
    </message>
    <message>
        <source>One-Chip Color Area Sensor</source>
        <translation>One-Chip Color Area Sensor</translation>
    </message>
    <message>
        <source>Two-Chip Color Area Sensor</source>
        <translation>Two-Chip Color Area Sensor</translation>
    </message>
    <message>
        <source>Three-Chip Color Area Sensor</source>
        <translation>Three-Chip Color Area Sensor</translation>
    </message>
    <message>
        <source>Color Sequential Area Sensor</source>
        <translation>Color Sequential Area Sensor</translation>
    </message>
    <message>
        <source>Trilinear Sensor</source>
        <translation>Trilinear Sensor</translation>
    </message>
    <message>
        <source>Color Sequential Linear Sensor</source>
        <translation>Color Sequential Linear Sensor</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Others</translation>
    </message>
    <message>
        <source>Scanner of Transparent Type</source>
        <translation>Scanner of Transparent Type</translation>
    </message>
    <message>
        <source>Scanner of Reflex Type</source>
        <translation>Scanner of Reflex Type</translation>
    </message>
    <message>
        <source>DSC</source>
        <translation>DSC</translation>
    </message>
    <message>
        <source>Directly Photographed Image</source>
        <translation>Directly Photographed Image</translation>
    </message>
    <message>
        <source>Normal Process</source>
        <translation>Normal Process</translation>
    </message>
    <message>
        <source>Custom Process</source>
        <translation>Custom Process</translation>
    </message>
    <message>
        <source>Auto Exposure</source>
        <translation>Auto Exposure</translation>
    </message>
    <message>
        <source>Manual Exposure</source>
        <translation>Manual Exposure</translation>
    </message>
    <message>
        <source>Auto Bracket</source>
        <translation>Auto Bracket</translation>
    </message>
    <message>
        <source>Auto White Balance</source>
        <translation>Auto White Balance</translation>
    </message>
    <message>
        <source>Manual White Balance</source>
        <translation>Manual White Balance</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Night Scene</source>
        <translation>Night Scene</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Low Gain Up</source>
        <translation>Low Gain Up</translation>
    </message>
    <message>
        <source>High Gain Up</source>
        <translation>High Gain Up</translation>
    </message>
    <message>
        <source>Low Gain Down</source>
        <translation>Low Gain Down</translation>
    </message>
    <message>
        <source>High Gain Down</source>
        <translation>High Gain Down</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Soft</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>Hard</translation>
    </message>
    <message>
        <source>Low Saturation</source>
        <translation>Low Saturation</translation>
    </message>
    <message>
        <source>High Saturation</source>
        <translation>High Saturation</translation>
    </message>
    <message>
        <source>Soft Sharpness</source>
        <translation>Soft Sharpness</translation>
    </message>
    <message>
        <source>Hard Sharpness</source>
        <translation>Hard Sharpness</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Close View</source>
        <translation>Close View</translation>
    </message>
    <message>
        <source>Distant View</source>
        <translation>Distant View</translation>
    </message>
    <message>
        <source>Non-Composite Image</source>
        <translation>Non-Composite Image</translation>
    </message>
    <message>
        <source>General Composite Image</source>
        <translation>General Composite Image</translation>
    </message>
    <message>
        <source>Composite Image Captured When Shooting Reserved</source>
        <translation>Composite Image Captured When Shooting Reserved</translation>
    </message>
    <message>
        <source>YCbCr 4:2:2</source>
        <translation>YCbCr 4:2:2</translation>
    </message>
    <message>
        <source>YCbCr 4:2:0</source>
        <translation>YCbCr 4:2:0</translation>
    </message>
    <message>
        <source>JFIF Version</source>
        <translation>JFIF Version</translation>
    </message>
    <message>
        <source>Density Unit</source>
        <translation>Density Unit</translation>
    </message>
    <message>
        <source>X Density</source>
        <translation>X Density</translation>
    </message>
    <message>
        <source>Y Density</source>
        <translation>Y Density</translation>
    </message>
    <message>
        <source>Thumbnail Width</source>
        <translation>Thumbnail Width</translation>
    </message>
    <message>
        <source>Thumbnail Height</source>
        <translation>Thumbnail Height</translation>
    </message>
    <message>
        <source>No Units</source>
        <translation>No Units</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Dots per inch</translation>
    </message>
    <message>
        <source>Dots per cm</source>
        <translation>Dots per cm</translation>
    </message>
    <message>
        <source>Little Endian</source>
        <translation>Little Endian</translation>
    </message>
    <message>
        <source>Big Endian</source>
        <translation>Big Endian</translation>
    </message>
    <message>
        <source>Photographic Sensitivity</source>
        <translation>Photographic Sensitivity</translation>
    </message>
    <message>
        <source>above sea level</source>
        <translation>above sea level</translation>
    </message>
    <message>
        <source>below sea level</source>
        <translation>below sea level</translation>
    </message>
    <message>
        <source>Above Sea Level</source>
        <translation>Above Sea Level</translation>
    </message>
    <message>
        <source>Below Sea Level</source>
        <translation>Below Sea Level</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Container</source>
        <translation>Container</translation>
    </message>
    <message>
        <source>APP1 segment</source>
        <translation>APP1 segment</translation>
    </message>
    <message>
        <source>embedded JPEG&apos;s APP1 segment</source>
        <translation>embedded JPEG&apos;s APP1 segment</translation>
    </message>
    <message>
        <source>Exif item</source>
        <translation>Exif item</translation>
    </message>
    <message>
        <source>CMT1 box</source>
        <translation>CMT1 box</translation>
    </message>
    <message>
        <source>CMT2 box</source>
        <translation>CMT2 box</translation>
    </message>
    <message>
        <source>eXIf chunk</source>
        <translation>eXIf chunk</translation>
    </message>
    <message>
        <source>EXIF chunk</source>
        <translation>EXIF chunk</translation>
    </message>
    <message>
        <source>TIFF structure</source>
        <translation>TIFF structure</translation>
    </message>
    <message>
        <source>embedded preview JPEG&apos;s APP1 segment</source>
        <translation>embedded preview JPEG&apos;s APP1 segment</translation>
    </message>
</context>
<context>
    <name>IPTC</name>
    <message>
        <source>IIM Envelope Record Version</source>
        <translation>IIM Envelope Record Version</translation>
    </message>
    <message>
        <source>IIM Destination</source>
        <translation>IIM Destination</translation>
    </message>
    <message>
        <source>IIM File Format</source>
        <translation>IIM File Format</translation>
    </message>
    <message>
        <source>IIM File Format Version</source>
        <translation>IIM File Format Version</translation>
    </message>
    <message>
        <source>IIM Service Identifier</source>
        <translation>IIM Service Identifier</translation>
    </message>
    <message>
        <source>IIM Envelope Number</source>
        <translation>IIM Envelope Number</translation>
    </message>
    <message>
        <source>IIM Product ID</source>
        <translation>IIM Product ID</translation>
    </message>
    <message>
        <source>IIM Envelope Priority</source>
        <translation>IIM Envelope Priority</translation>
    </message>
    <message>
        <source>IIM Date Sent</source>
        <translation>IIM Date Sent</translation>
    </message>
    <message>
        <source>IIM Time Sent</source>
        <translation>IIM Time Sent</translation>
    </message>
    <message>
        <source>IIM Coded Character Set</source>
        <translation>IIM Coded Character Set</translation>
    </message>
    <message>
        <source>IIM UNO</source>
        <translation>IIM UNO</translation>
    </message>
    <message>
        <source>IIM ARM Identifier</source>
        <translation>IIM ARM Identifier</translation>
    </message>
    <message>
        <source>IIM ARM Version</source>
        <translation>IIM ARM Version</translation>
    </message>
    <message>
        <source>IIM Application Record Version</source>
        <translation>IIM Application Record Version</translation>
    </message>
    <message>
        <source>IIM Object Type Reference</source>
        <translation>IIM Object Type Reference</translation>
    </message>
    <message>
        <source>IIM Object Attribute Reference</source>
        <translation>IIM Object Attribute Reference</translation>
    </message>
    <message>
        <source>IIM Object Name</source>
        <translation>IIM Object Name</translation>
    </message>
    <message>
        <source>IIM Edit Status</source>
        <translation>IIM Edit Status</translation>
    </message>
    <message>
        <source>IIM Editorial Update</source>
        <translation>IIM Editorial Update</translation>
    </message>
    <message>
        <source>IIM Urgency</source>
        <translation>IIM Urgency</translation>
    </message>
    <message>
        <source>IIM Subject Reference</source>
        <translation>IIM Subject Reference</translation>
    </message>
    <message>
        <source>IIM Category</source>
        <translation>IIM Category</translation>
    </message>
    <message>
        <source>IIM Supplemental Category</source>
        <translation>IIM Supplemental Category</translation>
    </message>
    <message>
        <source>IIM Fixture Identifier</source>
        <translation>IIM Fixture Identifier</translation>
    </message>
    <message>
        <source>IIM Keywords</source>
        <translation>IIM Keywords</translation>
    </message>
    <message>
        <source>IIM Content Location Code</source>
        <translation>IIM Content Location Code</translation>
    </message>
    <message>
        <source>IIM Content Location Name</source>
        <translation>IIM Content Location Name</translation>
    </message>
    <message>
        <source>IIM Release Date</source>
        <translation>IIM Release Date</translation>
    </message>
    <message>
        <source>IIM Release Time</source>
        <translation>IIM Release Time</translation>
    </message>
    <message>
        <source>IIM Expiration Date</source>
        <translation>IIM Expiration Date</translation>
    </message>
    <message>
        <source>IIM Expiration Time</source>
        <translation>IIM Expiration Time</translation>
    </message>
    <message>
        <source>IIM Special Instructions</source>
        <translation>IIM Special Instructions</translation>
    </message>
    <message>
        <source>IIM Action Advised</source>
        <translation>IIM Action Advised</translation>
    </message>
    <message>
        <source>IIM Reference Service</source>
        <translation>IIM Reference Service</translation>
    </message>
    <message>
        <source>IIM Reference Date</source>
        <translation>IIM Reference Date</translation>
    </message>
    <message>
        <source>IIM Reference Number</source>
        <translation>IIM Reference Number</translation>
    </message>
    <message>
        <source>IIM Date Created</source>
        <translation>IIM Date Created</translation>
    </message>
    <message>
        <source>IIM Time Created</source>
        <translation>IIM Time Created</translation>
    </message>
    <message>
        <source>IIM Digital Creation Date</source>
        <translation>IIM Digital Creation Date</translation>
    </message>
    <message>
        <source>IIM Digital Creation Time</source>
        <translation>IIM Digital Creation Time</translation>
    </message>
    <message>
        <source>IIM Originating Program</source>
        <translation>IIM Originating Program</translation>
    </message>
    <message>
        <source>IIM Program Version</source>
        <translation>IIM Program Version</translation>
    </message>
    <message>
        <source>IIM Object Cycle</source>
        <translation>IIM Object Cycle</translation>
    </message>
    <message>
        <source>IIM By-line</source>
        <translation>IIM By-line</translation>
    </message>
    <message>
        <source>IIM By-line Title</source>
        <translation>IIM By-line Title</translation>
    </message>
    <message>
        <source>IIM City</source>
        <translation>IIM City</translation>
    </message>
    <message>
        <source>IIM Sublocation</source>
        <translation>IIM Sublocation</translation>
    </message>
    <message>
        <source>IIM Province/State</source>
        <translation>IIM Province/State</translation>
    </message>
    <message>
        <source>IIM Country Code</source>
        <translation>IIM Country Code</translation>
    </message>
    <message>
        <source>IIM Country</source>
        <translation>IIM Country</translation>
    </message>
    <message>
        <source>IIM Transmission Reference</source>
        <translation>IIM Transmission Reference</translation>
    </message>
    <message>
        <source>IIM Headline</source>
        <translation>IIM Headline</translation>
    </message>
    <message>
        <source>IIM Credit</source>
        <translation>IIM Credit</translation>
    </message>
    <message>
        <source>IIM Source</source>
        <translation>IIM Source</translation>
    </message>
    <message>
        <source>IIM Copyright Notice</source>
        <translation>IIM Copyright Notice</translation>
    </message>
    <message>
        <source>IIM Contact</source>
        <translation>IIM Contact</translation>
    </message>
    <message>
        <source>IIM Caption</source>
        <translation>IIM Caption</translation>
    </message>
    <message>
        <source>IIM Writer</source>
        <translation>IIM Writer</translation>
    </message>
    <message>
        <source>IIM Rasterized Caption</source>
        <translation>IIM Rasterized Caption</translation>
    </message>
    <message>
        <source>IIM Image Type</source>
        <translation>IIM Image Type</translation>
    </message>
    <message>
        <source>IIM Image Orientation</source>
        <translation>IIM Image Orientation</translation>
    </message>
    <message>
        <source>IIM Language Identifier</source>
        <translation>IIM Language Identifier</translation>
    </message>
    <message>
        <source>IIM Audio Type</source>
        <translation>IIM Audio Type</translation>
    </message>
    <message>
        <source>IIM Audio Sampling Rate</source>
        <translation>IIM Audio Sampling Rate</translation>
    </message>
    <message>
        <source>IIM Audio Sampling Resolution</source>
        <translation>IIM Audio Sampling Resolution</translation>
    </message>
    <message>
        <source>IIM Audio Duration</source>
        <translation>IIM Audio Duration</translation>
    </message>
    <message>
        <source>IIM Audio Outcue</source>
        <translation>IIM Audio Outcue</translation>
    </message>
    <message>
        <source>IIM Object Data Preview File Format</source>
        <translation>IIM Object Data Preview File Format</translation>
    </message>
    <message>
        <source>IIM Object Data Preview File Format Version</source>
        <translation>IIM Object Data Preview File Format Version</translation>
    </message>
    <message>
        <source>IIM Object Data Preview Data</source>
        <translation>IIM Object Data Preview Data</translation>
    </message>
    <message>
        <source>IIM NewsPhoto Record Version</source>
        <translation>IIM NewsPhoto Record Version</translation>
    </message>
    <message>
        <source>IIM Picture Number</source>
        <translation>IIM Picture Number</translation>
    </message>
    <message>
        <source>IIM Image Width</source>
        <translation>IIM Image Width</translation>
    </message>
    <message>
        <source>IIM Image Height</source>
        <translation>IIM Image Height</translation>
    </message>
    <message>
        <source>IIM Pixel Width</source>
        <translation>IIM Pixel Width</translation>
    </message>
    <message>
        <source>IIM Pixel Height</source>
        <translation>IIM Pixel Height</translation>
    </message>
    <message>
        <source>IIM Supplement Type</source>
        <translation>IIM Supplement Type</translation>
    </message>
    <message>
        <source>IIM Color Representation</source>
        <translation>IIM Color Representation</translation>
    </message>
    <message>
        <source>IIM Interchange Color Space</source>
        <translation>IIM Interchange Color Space</translation>
    </message>
    <message>
        <source>IIM Color Sequence</source>
        <translation>IIM Color Sequence</translation>
    </message>
    <message>
        <source>IIM ICC Profile</source>
        <translation>IIM ICC Profile</translation>
    </message>
    <message>
        <source>IIM Color Calibration Matrix</source>
        <translation>IIM Color Calibration Matrix</translation>
    </message>
    <message>
        <source>IIM Lookup Table</source>
        <translation>IIM Lookup Table</translation>
    </message>
    <message>
        <source>IIM Number of Index Entries</source>
        <translation>IIM Number of Index Entries</translation>
    </message>
    <message>
        <source>IIM Color Palette</source>
        <translation>IIM Color Palette</translation>
    </message>
    <message>
        <source>IIM Number of Bits per Sample</source>
        <translation>IIM Number of Bits per Sample</translation>
    </message>
    <message>
        <source>IIM Sampling Structure</source>
        <translation>IIM Sampling Structure</translation>
    </message>
    <message>
        <source>IIM Scanning Direction</source>
        <translation>IIM Scanning Direction</translation>
    </message>
    <message>
        <source>IIM Image Rotation</source>
        <translation>IIM Image Rotation</translation>
    </message>
    <message>
        <source>IIM Data Compression Method</source>
        <translation>IIM Data Compression Method</translation>
    </message>
    <message>
        <source>IIM Quantization Method</source>
        <translation>IIM Quantization Method</translation>
    </message>
    <message>
        <source>IIM End Points</source>
        <translation>IIM End Points</translation>
    </message>
    <message>
        <source>IIM Excursion Tolerance</source>
        <translation>IIM Excursion Tolerance</translation>
    </message>
    <message>
        <source>IIM Bits per Component</source>
        <translation>IIM Bits per Component</translation>
    </message>
    <message>
        <source>IIM Maximum Density Range</source>
        <translation>IIM Maximum Density Range</translation>
    </message>
    <message>
        <source>IIM Gamma Compensated Value</source>
        <translation>IIM Gamma Compensated Value</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Current</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>Analysis</translation>
    </message>
    <message>
        <source>Archive material</source>
        <translation>Archive material</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>Forecast</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Obituary</source>
        <translation>Obituary</translation>
    </message>
    <message>
        <source>Opinion</source>
        <translation>Opinion</translation>
    </message>
    <message>
        <source>Polls &amp; Surveys</source>
        <translation>Polls &amp; Surveys</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Results Listings &amp; Tables</source>
        <translation>Results Listings &amp; Tables</translation>
    </message>
    <message>
        <source>Side bar &amp; Supporting information</source>
        <translation>Side bar &amp; Supporting information</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Transcript &amp; Verbatim</source>
        <translation>Transcript &amp; Verbatim</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>Interview</translation>
    </message>
    <message>
        <source>From the Scene</source>
        <translation>From the Scene</translation>
    </message>
    <message>
        <source>Retrospective</source>
        <translation>Retrospective</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Wrap-up</source>
        <translation>Wrap-up</translation>
    </message>
    <message>
        <source>Press Release</source>
        <translation>Press Release</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Info (Photoshop 2.0)</source>
        <translation>Info (Photoshop 2.0)</translation>
    </message>
    <message>
        <source>Macintosh Print Info</source>
        <translation>Macintosh Print Info</translation>
    </message>
    <message>
        <source>XML Data</source>
        <translation>XML Data</translation>
    </message>
    <message>
        <source>Indexed Color Table (Photoshop 2.0)</source>
        <translation>Indexed Color Table (Photoshop 2.0)</translation>
    </message>
    <message>
        <source>Resolution Info</source>
        <translation>Resolution Info</translation>
    </message>
    <message>
        <source>Names of the Alpha Channels</source>
        <translation>Names of the Alpha Channels</translation>
    </message>
    <message>
        <source>Display Info (Obsolete)</source>
        <translation>Display Info (Obsolete)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Caption</translation>
    </message>
    <message>
        <source>Border Info</source>
        <translation>Border Info</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Background Color</translation>
    </message>
    <message>
        <source>Print Flags</source>
        <translation>Print Flags</translation>
    </message>
    <message>
        <source>Grayscale and Multichannel Halftoning Info</source>
        <translation>Grayscale and Multichannel Halftoning Info</translation>
    </message>
    <message>
        <source>Color Halftoning Info</source>
        <translation>Color Halftoning Info</translation>
    </message>
    <message>
        <source>Duotone Halftoning Info</source>
        <translation>Duotone Halftoning Info</translation>
    </message>
    <message>
        <source>Grayscale and Multichannel Transfer Function</source>
        <translation>Grayscale and Multichannel Transfer Function</translation>
    </message>
    <message>
        <source>Color Transfer Functions</source>
        <translation>Color Transfer Functions</translation>
    </message>
    <message>
        <source>Duotone Transfer Functions</source>
        <translation>Duotone Transfer Functions</translation>
    </message>
    <message>
        <source>Duotone Image Info</source>
        <translation>Duotone Image Info</translation>
    </message>
    <message>
        <source>Effective Black and White</source>
        <translation>Effective Black and White</translation>
    </message>
    <message>
        <source>(Obsolete)</source>
        <translation>(Obsolete)</translation>
    </message>
    <message>
        <source>EPS Options</source>
        <translation>EPS Options</translation>
    </message>
    <message>
        <source>Quick Mask Info</source>
        <translation>Quick Mask Info</translation>
    </message>
    <message>
        <source>Layer State</source>
        <translation>Layer State</translation>
    </message>
    <message>
        <source>Working Path</source>
        <translation>Working Path</translation>
    </message>
    <message>
        <source>Layers Group</source>
        <translation>Layers Group</translation>
    </message>
    <message>
        <source>IPTC IIM</source>
        <translation>IPTC IIM</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Image Mode</translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation>JPEG Quality</translation>
    </message>
    <message>
        <source>Grid and Guides</source>
        <translation>Grid and Guides</translation>
    </message>
    <message>
        <source>BGR Thumbnail</source>
        <translation>BGR Thumbnail</translation>
    </message>
    <message>
        <source>Copyright Flag</source>
        <translation>Copyright Flag</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>RGB Thumbnail</source>
        <translation>RGB Thumbnail</translation>
    </message>
    <message>
        <source>Global Angle</source>
        <translation>Global Angle</translation>
    </message>
    <message>
        <source>Color Samplers</source>
        <translation>Color Samplers</translation>
    </message>
    <message>
        <source>ICC Profile</source>
        <translation>ICC Profile</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>ICC Untagged</source>
        <translation>ICC Untagged</translation>
    </message>
    <message>
        <source>Effects Visible</source>
        <translation>Effects Visible</translation>
    </message>
    <message>
        <source>Spot Halftone</source>
        <translation>Spot Halftone</translation>
    </message>
    <message>
        <source>Document Specific IDs</source>
        <translation>Document Specific IDs</translation>
    </message>
    <message>
        <source>Unicode Alpha Names</source>
        <translation>Unicode Alpha Names</translation>
    </message>
    <message>
        <source>Indexed Color Table Count</source>
        <translation>Indexed Color Table Count</translation>
    </message>
    <message>
        <source>Transparency Index</source>
        <translation>Transparency Index</translation>
    </message>
    <message>
        <source>Global Altitude</source>
        <translation>Global Altitude</translation>
    </message>
    <message>
        <source>Slices</source>
        <translation>Slices</translation>
    </message>
    <message>
        <source>Workflow URL</source>
        <translation>Workflow URL</translation>
    </message>
    <message>
        <source>Jump to XPEP</source>
        <translation>Jump to XPEP</translation>
    </message>
    <message>
        <source>Alpha Identifiers</source>
        <translation>Alpha Identifiers</translation>
    </message>
    <message>
        <source>URL List</source>
        <translation>URL List</translation>
    </message>
    <message>
        <source>Version Info</source>
        <translation>Version Info</translation>
    </message>
    <message>
        <source>Exif</source>
        <translation>Exif</translation>
    </message>
    <message>
        <source>XMP Metadata</source>
        <translation>XMP Metadata</translation>
    </message>
    <message>
        <source>Caption Digest</source>
        <translation>Caption Digest</translation>
    </message>
    <message>
        <source>Print Scale</source>
        <translation>Print Scale</translation>
    </message>
    <message>
        <source>Pixel Aspect Ratio</source>
        <translation>Pixel Aspect Ratio</translation>
    </message>
    <message>
        <source>Layer Comps</source>
        <translation>Layer Comps</translation>
    </message>
    <message>
        <source>Alternate Duotone Colors</source>
        <translation>Alternate Duotone Colors</translation>
    </message>
    <message>
        <source>Alternate Spot Colors</source>
        <translation>Alternate Spot Colors</translation>
    </message>
    <message>
        <source>Layer Selection IDs</source>
        <translation>Layer Selection IDs</translation>
    </message>
    <message>
        <source>HDR Toning Info</source>
        <translation>HDR Toning Info</translation>
    </message>
    <message>
        <source>Print Info</source>
        <translation>Print Info</translation>
    </message>
    <message>
        <source>Layer Groups Enabled ID</source>
        <translation>Layer Groups Enabled ID</translation>
    </message>
    <message>
        <source>Color Samplers Resource</source>
        <translation>Color Samplers Resource</translation>
    </message>
    <message>
        <source>Measurement Scale</source>
        <translation>Measurement Scale</translation>
    </message>
    <message>
        <source>Timeline Info</source>
        <translation>Timeline Info</translation>
    </message>
    <message>
        <source>Sheet Disclosure</source>
        <translation>Sheet Disclosure</translation>
    </message>
    <message>
        <source>Display Info</source>
        <translation>Display Info</translation>
    </message>
    <message>
        <source>Onion Skins</source>
        <translation>Onion Skins</translation>
    </message>
    <message>
        <source>Count Info</source>
        <translation>Count Info</translation>
    </message>
    <message>
        <source>Print Style</source>
        <translation>Print Style</translation>
    </message>
    <message>
        <source>Macintosh NSPrintInfo</source>
        <translation>Macintosh NSPrintInfo</translation>
    </message>
    <message>
        <source>Windows DEVMODE</source>
        <translation>Windows DEVMODE</translation>
    </message>
    <message>
        <source>Path Info</source>
        <translation>Path Info</translation>
    </message>
    <message>
        <source>Name of Clipping Path</source>
        <translation>Name of Clipping Path</translation>
    </message>
    <message>
        <source>Plug-In resources</source>
        <translation>Plug-In resources</translation>
    </message>
    <message>
        <source>Image Ready Variables</source>
        <translation>Image Ready Variables</translation>
    </message>
    <message>
        <source>Image Ready Data Sets</source>
        <translation>Image Ready Data Sets</translation>
    </message>
    <message>
        <source>Lightroom Workflow</source>
        <translation>Lightroom Workflow</translation>
    </message>
    <message>
        <source>Print Flags Info</source>
        <translation>Print Flags Info</translation>
    </message>
    <message>
        <source>IPTC Information Interchange Model</source>
        <translation>IPTC Information Interchange Model</translation>
    </message>
</context>
<context>
    <name>ImageWindow</name>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Information Text</source>
        <translation>Information Text</translation>
    </message>
</context>
<context>
    <name>InfoTableModel</name>
    <message>
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Backward</source>
        <translation>Backward</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Set Time</source>
        <translation>Set Time</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Years</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Months</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Hours</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Seconds</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>A date would leave the range from 0001 to 9999.</source>
        <translation>A date would leave the range from 0001 to 9999.</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Thumbnail</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Edited</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>FileName</translation>
    </message>
    <message>
        <source>DateTimeOriginal</source>
        <translation>DateTimeOriginal</translation>
    </message>
    <message>
        <source>DateTimeDigitized</source>
        <translation>DateTimeDigitized</translation>
    </message>
    <message>
        <source>DateTime</source>
        <translation>DateTime</translation>
    </message>
    <message>
        <source>No Date-Time</source>
        <translation>No Date-Time</translation>
    </message>
    <message>
        <source>LocalST_ImagesWindowTitle</source>
        <translation>%1 (%2 images)</translation>
    </message>
    <message>
        <source>Restore Clicked File</source>
        <translation>Restore Clicked File</translation>
    </message>
    <message>
        <source>Restore Selected Files</source>
        <translation>Restore Selected Files</translation>
    </message>
    <message>
        <source>Restore All Files</source>
        <translation>Restore All Files</translation>
    </message>
    <message>
        <source>Date Time Original:</source>
        <translation>Date Time Original:</translation>
    </message>
    <message>
        <source>Date Time Digitized:</source>
        <translation>Date Time Digitized:</translation>
    </message>
    <message>
        <source>Date Time Edited:</source>
        <translation>Date Time Edited:</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation>Synchronize</translation>
    </message>
    <message>
        <source>The document has unsaved changes. Do you want to save the changes before closing?</source>
        <translation>The document &quot;%1&quot; has unsaved changes. Do you want to save the changes before closing?</translation>
    </message>
    <message>
        <source>There are multiple documents with unsaved changes. Do you want to save them before closing?</source>
        <translation>There are multiple documents with unsaved changes. Do you want to save them before closing?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don&apos;t save them.</source>
        <translation>Your changes will be lost if you don&apos;t save them.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Don&apos;t Save</translation>
    </message>
    <message>
        <source>Save Completed:</source>
        <translation>Save Completed: %1</translation>
    </message>
    <message>
        <source>Save a file Failed.</source>
        <translation>Save a file Failed. (%1)</translation>
    </message>
    <message>
        <source>Save files Failed.</source>
        <translation>Save files Failed. (%1 files)</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Open Files</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Loading files</source>
        <translation>Loading %1 files...</translation>
    </message>
    <message>
        <source>%@ / %lu</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%ld x %ld</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>, %@</source>
        <translation>, %1</translation>
    </message>
    <message>
        <source>Lumidate</source>
        <translation>Lumidate</translation>
    </message>
    <message>
        <source>You are opening multiple files.</source>
        <translation>You are opening %1 files.</translation>
    </message>
    <message>
        <source>How would you like to open them?</source>
        <translation>How would you like to open them?</translation>
    </message>
    <message>
        <source>Open in One Window</source>
        <translation>Open in One Window</translation>
    </message>
    <message>
        <source>Open in Separate Windows</source>
        <translation>Open in Separate Windows</translation>
    </message>
    <message>
        <source>Could not be opened.</source>
        <translation>&quot;%1&quot; could not be opened.</translation>
    </message>
    <message>
        <source>It uses a file format that Lumidate does not recognize.</source>
        <translation>It uses a file format that Lumidate does not recognize.</translation>
    </message>
    <message>
        <source>An unknown cause.</source>
        <translation>An unknown cause.</translation>
    </message>
    <message>
        <source>The files could not be opened.</source>
        <translation>The files could not be opened.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Hide Information</source>
        <translation>Hide Information</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>Show Information</translation>
    </message>
    <message>
        <source>Multiple Values</source>
        <translation>Multiple Values</translation>
    </message>
    <message>
        <source>days</source>
        <translation>%1 days</translation>
    </message>
    <message>
        <source>day</source>
        <translation>%1 day</translation>
    </message>
    <message>
        <source>Day Count Calculator</source>
        <translation>Day Count Calculator</translation>
    </message>
    <message>
        <source>Retrieve altitude value from the Geospatial Information Authority of Japan.</source>
        <translation>Retrieve altitude value from the Geospatial Information Authority of Japan.</translation>
    </message>
    <message>
        <source>This file cannot be edited:</source>
        <translation>This file cannot be edited: %1.</translation>
    </message>
    <message>
        <source>Videos are not edited yet.</source>
        <translation>Videos are not edited yet.</translation>
    </message>
</context>
<context>
    <name>MultiFileActions</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Save &amp;All</source>
        <translation>Save &amp;All</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Select &amp;All</translation>
    </message>
    <message>
        <source>Mark All Files</source>
        <translation>Mark All Files</translation>
    </message>
    <message>
        <source>Unmark All Files</source>
        <translation>Unmark All Files</translation>
    </message>
    <message>
        <source>Mark Selected Files</source>
        <translation>Mark Selected Files</translation>
    </message>
    <message>
        <source>Unmark Selected Files</source>
        <translation>Unmark Selected Files</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Sort By</translation>
    </message>
</context>
<context>
    <name>MultiFileWindow</name>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message>
        <source>&amp;Path:</source>
        <translation>&amp;Path:</translation>
    </message>
</context>
<context>
    <name>OpenFileDialog</name>
    <message>
        <source>All Files (*)</source>
        <translation>All Files (*)</translation>
    </message>
    <message>
        <source>Camera RAW (%1)</source>
        <translation>Camera RAW (%1)</translation>
    </message>
    <message>
        <source>HEIC/HEIF/AVIF (%1)</source>
        <translation>HEIC/HEIF/AVIF (%1)</translation>
    </message>
    <message>
        <source>PNG (%1)</source>
        <translation>PNG (%1)</translation>
    </message>
    <message>
        <source>WebP (%1)</source>
        <translation>WebP (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Photos (%1)</translation>
    </message>
</context>
<context>
    <name>OrbAltitudeGetterField</name>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
</context>
<context>
    <name>PhotoView</name>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>The photo cannot be shown.</source>
        <translation>The photo cannot be shown.</translation>
    </message>
</context>
<context>
    <name>QMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>List Size</source>
        <translation>List Size</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Tools</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
</context>
<context>
    <name>SavingSheet</name>
    <message>
        <source>Saving</source>
        <translation>Saving</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Saving...</translation>
    </message>
</context>
<context>
    <name>SingleFileWindow</name>
    <message>
        <source>Change by Interval...</source>
        <translation>Change by Interval...</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Re&amp;vert to Saved</translation>
    </message>
    <message>
        <source>Change by &amp;Interval...</source>
        <translation>Change by &amp;Interval...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and corrects the dates of photos.</source>
        <translation>Shows and corrects the dates of photos.</translation>
    </message>
    <message>
        <source>Photo files or folders to open.</source>
        <translation>Photo files or folders to open.</translation>
    </message>
</context>
</TS>
