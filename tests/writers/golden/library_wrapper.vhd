--==== flop.tdf ====
-- flop
-- lumenbox generated header file for use with tolvane when compiling thrid party tools output
include "flop".inc;

PARAMETERS 
(
	POWER = "LOW",
	WIDTH,
	clk_port_used = "UNUSED",
	d_port_used = "UNUSED",
	ena_port_used = "UNUSED",
	q_port_used = "UNUSED"
);
SUBDESIGN flop
( 
	clk	:	input;
	d[3..0]	:	input;
	ena	:	input;
	q[3..0]	:	output;
) VARIABLE 
	mg : lib_flop WITH (
		POWER = POWER, 
		WIDTH = WIDTH);
BEGIN 
	IF (USED(clk) & clk_port_used == "USED") GENERATE
		mg.clk = clk;
	END GENERATE;
	IF (USED(d) & d_port_used == "USED") GENERATE
		mg.d[WIDTH-1..0] = d[WIDTH-1..0];
	END GENERATE;
	IF (USED(ena) & ena_port_used == "USED") GENERATE
		mg.ena = ena;
	END GENERATE;
	IF (USED(q) & q_port_used == "USED") GENERATE
		q[WIDTH-1..0] = mg.q[WIDTH-1..0];
	END GENERATE;
END;--==== top.vhd ====
--top clk d
--


-- (legal notice)



 USE work.special_cells.all;

--synthesis_resources = flop 1 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 clk	:	IN  STD_LOGIC;
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	q <= wire_u_q;
	u :  flop
	  GENERIC MAP (
		WIDTH => 4,
		clk_port_used => "USED",
		d_port_used => "USED",
		q_port_used => "USED"
	  )
	  PORT MAP ( 
		clk => clk,
		d => d,
		q => wire_u_q
	  );

 END RTL; --top
--VALID FILE
