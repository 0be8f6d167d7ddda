//==== top.v ====
//top d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)



//synthesis_resources = fir 1 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_u_q;

	top_mg132   u
	( 
	.d(d),
	.q(wire_u_q));
	assign
		q = wire_u_q;
endmodule //top
//VALID FILE
//==== top_mg132.vhd ====
--filter COEF1=5 COEF3=9 d q
--

-- (legal notice)


 USE work.filters.all;

--synthesis_resources = fir 1 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg132 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mg132;

 ARCHITECTURE RTL OF top_mg132 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u_fir_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  fir
	 GENERIC 
	 (
		COEF	:	coefficients := (OTHERS => 0);
		lpm_hint	:	STRING := "UNUSED"
	 );
	 PORT
	 ( 
		d	:	IN STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_u_fir_q;
	u_fir :  fir
	  GENERIC MAP (
		COEF => ( 1 => 5,3 => 9, OTHERS => 0)
	  )
	  PORT MAP ( 
		d => d,
		q => wire_u_fir_q
	  );

 END RTL; --top_mg132
--VALID FILE
