<?xml version="1.0"?>
<!-- Prints a list of sold items as the print compiler does, with columns of 3, 8 and 9 on 40. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:output method="text" encoding="UTF-8"/>
  <xsl:variable name="blanks" select="'                    '"/>
  <xsl:variable name="dots" select="'....................'"/>

  <xsl:template match="/print">
    <xsl:text>&#10;j&#10;</xsl:text>
    <xsl:apply-templates select="receipe"/>
    <xsl:text>J&#10;</xsl:text>
  </xsl:template>

  <xsl:template match="receipe">
    <xsl:text>"</xsl:text>
    <xsl:value-of select="substring($blanks, 1, 3 - string-length(@quantity))"/>
    <xsl:value-of select="@quantity"/>
    <xsl:text> x </xsl:text>
    <xsl:value-of select="substring(concat(@description, $dots), 1, 17)"/>
    <xsl:value-of select="substring($dots, 1, 8)"/>
    <xsl:value-of select="substring($blanks, 1, 9 - string-length(@amount))"/>
    <xsl:value-of select="@amount"/>
    <xsl:text>"@&#10;</xsl:text>
  </xsl:template>
</xsl:stylesheet>
